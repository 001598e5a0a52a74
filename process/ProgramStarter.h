#pragma once

#include <memory>
#include <string>
#include <vector>

namespace launcher {

/// A program that was started. Any thread.
class RunningProcess {
 public:
  virtual ~RunningProcess() = default;

  /// Asks the program to stop (SIGTERM) and does not wait. Nothing happens once it has ended.
  virtual void terminate() = 0;
};

/// Starts programs.
class ProgramStarter {
 public:
  virtual ~ProgramStarter() = default;

  /// Starts the executable at `path` with exactly these arguments (its own name excluded), without
  /// a shell. Null where it cannot be started. Any thread.
  virtual std::shared_ptr<RunningProcess> start(const std::string& path,
                                                const std::vector<std::string>& arguments) = 0;
};

std::unique_ptr<ProgramStarter> makeProgramStarter();

}  // namespace launcher
