#pragma once

#include <memory>
#include <string>
#include <vector>

namespace launcher {

/// A started program. Any thread.
class RunningProcess {
 public:
  virtual ~RunningProcess() = default;

  /// Asks the program to stop (SIGTERM) without waiting. Does nothing once it has ended.
  virtual void terminate() = 0;
};

/// Starts programs.
class ProgramStarter {
 public:
  virtual ~ProgramStarter() = default;

  /// Starts the executable at `path` with exactly these arguments (without its own name) and no
  /// shell. Null if it cannot be started. Any thread.
  virtual std::shared_ptr<RunningProcess> start(const std::string& path,
                                                const std::vector<std::string>& arguments) = 0;
};

std::unique_ptr<ProgramStarter> makeProgramStarter();

}  // namespace launcher
