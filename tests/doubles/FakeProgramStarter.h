#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "process/ProgramStarter.h"

namespace launcher {

/// A program that only counts how often it is asked to stop.
class FakeRunningProcess : public RunningProcess {
 public:
  int terminations = 0;
  std::function<void()> onTerminate = [] {};

  void terminate() override {
    ++terminations;
    onTerminate();
  }
};

/// Remembers what it was asked to start.
///
///     starter.refuses = true;                     nothing can be started
///     starter.starts[0].process->terminations     of the first program
class FakeProgramStarter : public ProgramStarter {
 public:
  struct Start {
    std::string path;
    std::vector<std::string> arguments;
    std::shared_ptr<FakeRunningProcess> process;  ///< null where it was refused
  };

  bool refuses = false;
  std::vector<Start> starts;
  std::function<void()> onStart = [] {};

  std::shared_ptr<RunningProcess> start(const std::string& path,
                                        const std::vector<std::string>& arguments) override {
    auto process = refuses ? nullptr : std::make_shared<FakeRunningProcess>();
    starts.push_back({path, arguments, process});
    onStart();
    return process;
  }
};

}  // namespace launcher
