#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "process/ProcessTable.h"

namespace launcher {

/// Searches the process table by command name. No state: every search takes a fresh snapshot.
class ProcessHelpers {
 public:
  /// The identifier of the first process whose command name is a prefix of `name` (mind the
  /// direction: it is the searched name that begins with the command name), or `noProcess`, also
  /// where the table cannot be read. Texts are compared under canonical equivalence; case counts;
  /// empty command names and processes that have ended never match. Any thread.
  ///
  ///     processes 7 "vex", 8 "vexlink"   getRunningProcess("vexlink", table)   -> 7
  ///     process   9 "vexlinks"           getRunningProcess("vexlink", table)   -> noProcess
  static ProcessId getRunningProcess(std::string_view name, const ProcessTable& table);

 private:
  using Snapshot = std::vector<std::byte>;

  /// All records of the table, those that it left unfilled zero; absent where its size is unknown
  /// or there is no memory for it.
  static std::optional<Snapshot> GetBSDProcessList(const ProcessTable& table);
};

}  // namespace launcher
