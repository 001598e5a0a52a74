#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

namespace launcher {

/// A process identifier; `noProcess` says that no such process runs.
using ProcessId = std::int32_t;
inline constexpr ProcessId noProcess = -1;

/// The two fields that are read of a process record.
struct ProcessRecord {
  ProcessId pid;                 ///< `kp_proc.p_pid`
  std::array<char, 17> command;  ///< `kp_proc.p_comm`, zero-padded: the executable's name, cut

  /// The command up to its first NUL: bytes that need not be well-formed UTF-8.
  std::string_view name() const {
    return {command.data(), strnlen(command.data(), command.size())};
  }
};

/// The machine's process table, asked in the manner of the BSD `sysctl`. No state; any thread.
class ProcessTable {
 public:
  virtual ~ProcessTable() = default;

  /// The size of one record in bytes.
  virtual std::size_t recordSize() const = 0;

  /// Sets `length` to the number of bytes that the table needs now, or some more.
  ///
  /// Returns 0, or -1 with `errno` set. What another value means is the caller's to judge.
  virtual int probeSize(std::size_t& length) const = 0;

  /// Fills a buffer of `length` bytes with whole records, sets `length` to the number of bytes
  /// filled, and leaves the rest untouched. A buffer that has become too small is filled as far as
  /// it goes, and the call fails with `ENOMEM`.
  ///
  /// Returns as `probeSize` does. What `length` is after a failure differs between systems: some
  /// say how much was filled, others 0. The records that were filled count all the same.
  virtual int fetch(std::byte* buffer, std::size_t& length) const = 0;

  /// Reads one record of `recordSize()` bytes. A zeroed record has the empty name.
  virtual ProcessRecord read(const std::byte* record) const = 0;

  /// Whether a process that the table lists has ended and only waits for its parent to notice.
  /// A platform that counts such a process as running until then says no.
  virtual bool hasEnded(ProcessId /*pid*/) const { return false; }
};

std::unique_ptr<ProcessTable> makeProcessTable();

}  // namespace launcher
