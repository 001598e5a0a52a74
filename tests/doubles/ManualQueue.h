#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <utility>

#include "controller/WorkQueue.h"

namespace launcher {

/// A queue whose items run when the test says so.
class ManualQueue : public WorkQueue {
 public:
  std::function<void()> onAdd = [] {};

  void add(std::function<void()> item) override {
    onAdd();
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
  std::deque<std::function<void()>> items_;
};

}  // namespace launcher
