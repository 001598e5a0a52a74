#pragma once

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "process/ProcessTable.h"
#include "process/ProgramStarter.h"
#include "tests/contract/Eventually.h"
#include "tests/contract/Processes.h"
#include "tests/contract/ScratchFolder.h"

namespace launcher {

/// A real process whose executable has a name of the test's choice. It is stopped with this object.
///
///     NamedProcess("some-name").pid()
class NamedProcess {
 public:
  explicit NamedProcess(const std::string& name, const std::string& verb = "announce",
                        std::vector<std::string> arguments = {}) {
    const std::string announcement = folder_.file("announcement");
    std::filesystem::copy_file(TEST_CHILDREN "/test-child", folder_.file(name));
    arguments.insert(arguments.begin(), {verb, announcement});
    handle_ = makeProgramStarter()->start(folder_.file(name), arguments);
    if (handle_ == nullptr) throw std::runtime_error("not started: " + name);
    if (!eventually([&] { return std::filesystem::exists(announcement); })) {
      throw std::runtime_error("not announced: " + name);
    }
    announced_ = contentOf(announcement);
    pid_ = std::stoi(announced_);
  }
  NamedProcess(const NamedProcess&) = delete;
  NamedProcess& operator=(const NamedProcess&) = delete;
  ~NamedProcess() { stop(); }

  ProcessId pid() const { return pid_; }

  /// Its identifier and the arguments after the announcement's file, one a line, arguments in
  /// brackets.
  const std::string& announced() const { return announced_; }

  RunningProcess& handle() const { return *handle_; }

  /// Drops the handle without sending a signal.
  void dropHandle() { handle_.reset(); }

  void stop() {
    if (handle_ == nullptr) return;
    handle_->terminate();
    eventually([&] { return !isThere(pid_); });
    handle_.reset();
  }

 private:
  ScratchFolder folder_;
  std::shared_ptr<RunningProcess> handle_;
  std::string announced_;
  ProcessId pid_ = noProcess;
};

}  // namespace launcher
