#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "process/ProgramStarter.h"
#include "tests/doubles/EventLog.h"

namespace launcher {

/// A program that only counts how often it is asked to stop.
class FakeRunningProcess : public RunningProcess {
 public:
  std::shared_ptr<EventLog> log = std::make_shared<EventLog>();
  int terminations = 0;
  std::function<void()> onTerminate = [] {};

  void terminate() override {
    ++terminations;
    log->note("stop viewer");
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
  std::shared_ptr<EventLog> log = std::make_shared<EventLog>();  ///< of the programs, too
  std::function<void()> onStart = [] {};

  std::shared_ptr<RunningProcess> start(const std::string& path,
                                        const std::vector<std::string>& arguments) override {
    log->note("start viewer");
    auto process = refuses ? nullptr : std::make_shared<FakeRunningProcess>();
    if (process) process->log = log;
    starts.push_back({path, arguments, process});
    onStart();
    return process;
  }
};

}  // namespace launcher
