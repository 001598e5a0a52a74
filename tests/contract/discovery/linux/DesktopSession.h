#pragma once

#include <sys/prctl.h>
#include <sys/wait.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "base/linux/Spawn.h"
#include "tests/contract/Eventually.h"
#include "tests/contract/Pipe.h"
#include "tests/contract/Processes.h"
#include "tests/contract/ScratchFolder.h"

namespace launcher {

/// Gives an environment variable another value for a while. An empty value removes the variable.
class Variable {
 public:
  Variable(const char* name, const std::string& value) : name_(name) {
    if (const char* before = std::getenv(name)) before_ = before;
    set(value);
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() { set(before_); }

 private:
  void set(const std::string& value) {
    value.empty() ? unsetenv(name_) : setenv(name_, value.c_str(), 1);
  }

  const char* name_;
  std::string before_;
};

/// A session bus of the test's own, with the store of metadata behind it. While it lives, the
/// environment points to it. Everything that it starts ends with it.
class DesktopSession {
 public:
  DesktopSession() {
    prctl(PR_SET_CHILD_SUBREAPER, 1);  // what the bus starts becomes ours when the bus ends
    bus_ = spawn({.path = "/usr/bin/dbus-daemon",
                  .arguments = {"--session", "--nofork", "--nopidfile", "--print-address"},
                  .output = pipe_.writer()});
    pipe_.closeWriter();
    if (bus_ != nullptr) address_.emplace("DBUS_SESSION_BUS_ADDRESS", addressLine());
  }
  DesktopSession(const DesktopSession&) = delete;
  DesktopSession& operator=(const DesktopSession&) = delete;
  ~DesktopSession() {
    if (bus_ != nullptr) {
      bus_->terminate();
      bus_->waitUntilExit();
    }
    eventually([] {
      endChildren();
      return hasNoChildren();
    });
    prctl(PR_SET_CHILD_SUBREAPER, 0);
  }

  bool isRunning() const { return bus_ != nullptr; }

 private:
  /// The bus may say something else first.
  std::string addressLine() const {
    std::string line = pipe_.line();
    while (!line.empty() && !line.starts_with("unix:")) line = pipe_.line();
    return line;
  }

  static void endChildren() {
    for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
      std::ifstream children(thread.path() / "children");
      for (pid_t child = 0; children >> child;) {
        sendSignal(child, SIGKILL);
        waitpid(child, nullptr, 0);
      }
    }
  }

  ScratchFolder folder_;
  Variable data_{"XDG_DATA_HOME", folder_.path()};
  Variable runtime_{"XDG_RUNTIME_DIR", folder_.path()};
  Variable noFuse_{"GVFS_DISABLE_FUSE", "1"};
  Pipe pipe_;
  std::shared_ptr<SpawnedChild> bus_;
  std::optional<Variable> address_;
};

}  // namespace launcher
