#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "controller/WorkQueue.h"
#include "tests/doubles/EventLog.h"

namespace launcher {

/// A queue whose items run when the test says so.
class ManualQueue : public WorkQueue {
 public:
  explicit ManualQueue(std::string name) : name_(std::move(name)) {}

  std::shared_ptr<EventLog> log = std::make_shared<EventLog>();

  void add(std::function<void()> item) override {
    log->note("queue " + name_);
    items_.push_back(std::move(item));
  }

  std::size_t size() const { return items_.size(); }

  void runNext() {
    const auto item = std::move(items_.front());
    items_.pop_front();
    item();
  }

  void runAll() {
    while (!items_.empty()) runNext();
  }

 private:
  std::string name_;
  std::deque<std::function<void()>> items_;
};

}  // namespace launcher
