#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "process/ProcessTable.h"

namespace launcher {

/// Searches the process table by command name. Keeps no state: every search takes a new snapshot.
class ProcessHelpers {
 public:
  /// The identifier of the first process whose command name is a prefix of `name`, or `noProcess`.
  /// Mind the direction: the searched name begins with the command name. The prefix matches under
  /// canonical equivalence; case counts. Empty command names and ended processes never match.
  /// `noProcess` too if the table cannot be read. Any thread.
  ///
  ///     processes 7 "vex", 8 "vexlink"   getRunningProcess("vexlink", table)   -> 7
  ///     process   9 "vexlinks"           getRunningProcess("vexlink", table)   -> noProcess
  static ProcessId getRunningProcess(std::string_view name, const ProcessTable& table);

 private:
  using Snapshot = std::vector<std::byte>;

  /// All records of the table; zeros where it filled none. Absent if its size is unknown or there
  /// is no memory for it.
  static std::optional<Snapshot> GetBSDProcessList(const ProcessTable& table);
};

}  // namespace launcher
