#pragma once

#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace launcher {

/// What happened to doubles, in order. Each has a log of its own; those that share one show which
/// of them was called first. Any thread.
///
///     window.log = processes.log = log;
///     log->events()   -> "enable button", "ask process table"
class EventLog {
 public:
  void note(std::string event) {
    const std::lock_guard lock(mutex_);
    events_.push_back(std::move(event));
  }

  std::vector<std::string> events() const {
    const std::lock_guard lock(mutex_);
    return events_;
  }

  void clear() {
    const std::lock_guard lock(mutex_);
    events_.clear();
  }

 private:
  mutable std::mutex mutex_;
  std::vector<std::string> events_;
};

}  // namespace launcher
