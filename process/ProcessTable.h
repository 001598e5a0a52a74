#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace launcher {

/// A process identifier; `noProcess` says that no such process runs.
using ProcessId = std::int32_t;
inline constexpr ProcessId noProcess = -1;

/// The two fields that are read of a process record.
struct ProcessRecord {
  ProcessId pid;        ///< `kp_proc.p_pid`
  std::string command;  ///< `kp_proc.p_comm` up to its first NUL, well-formed UTF-8
};

/// The machine's process table, asked in the manner of the BSD `sysctl`. No state; any thread.
class ProcessTable {
 public:
  virtual ~ProcessTable() = default;

  /// The size of one record in bytes.
  virtual std::size_t recordSize() const = 0;

  /// Without a buffer: sets `length` to the number of bytes that the table needs now.
  /// With a buffer of `length` bytes: fills it with whole records, sets `length` to the number of
  /// bytes filled, and leaves the rest untouched. A buffer that has become too small is filled as
  /// far as it goes, and the call fails with `ENOMEM`.
  ///
  /// Returns 0, or -1 with `errno` set. What another value means is the caller's to judge.
  virtual int query(std::byte* buffer, std::size_t& length) const = 0;

  /// Reads one record of `recordSize()` bytes. A zeroed record has the empty command.
  virtual ProcessRecord read(const std::byte* record) const = 0;
};

std::unique_ptr<ProcessTable> makeProcessTable();

}  // namespace launcher
