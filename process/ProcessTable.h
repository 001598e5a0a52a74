#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

namespace launcher {

/// A process identifier; `noProcess` means that no such process runs.
using ProcessId = std::int32_t;
inline constexpr ProcessId noProcess = -1;

/// The two fields of a process record that we read.
struct ProcessRecord {
  ProcessId pid;                 ///< `kp_proc.p_pid`
  std::array<char, 17> command;  ///< `kp_proc.p_comm`, zero-padded: the executable's name, cut

  /// The command up to its first NUL. It need not be well-formed UTF-8.
  std::string_view name() const {
    return {command.data(), strnlen(command.data(), command.size())};
  }
};

/// The machine's process table, read as with the BSD `sysctl`. No state; any thread.
class ProcessTable {
 public:
  virtual ~ProcessTable() = default;

  /// The size of one record in bytes.
  virtual std::size_t recordSize() const = 0;

  /// Sets `length` to the number of bytes that the table needs now, or slightly more.
  ///
  /// Returns 0, or -1 with `errno` set. The caller handles any other value.
  virtual int probeSize(std::size_t& length) const = 0;

  /// Fills a buffer of `length` bytes with whole records and sets `length` to the number of bytes
  /// filled. Leaves the rest untouched. If the table has outgrown the buffer, fills it as far as
  /// possible and fails with `ENOMEM`.
  ///
  /// Returns as `probeSize` does. After a failure `length` differs between systems: some set it to
  /// the bytes filled, others to 0. The filled records are valid either way.
  virtual int fetch(std::byte* buffer, std::size_t& length) const = 0;

  /// Reads one record of `recordSize()` bytes. A zeroed record has the empty name.
  virtual ProcessRecord read(const std::byte* record) const = 0;

  /// Whether a listed process has ended and only waits to be reaped by its parent. False on a
  /// platform that counts such a process as running until then.
  virtual bool hasEnded(ProcessId /*pid*/) const { return false; }
};

std::unique_ptr<ProcessTable> makeProcessTable();

}  // namespace launcher
