#pragma once

#include <functional>

namespace launcher {

/// Runs items of work later.
class WorkQueue {
 public:
  virtual ~WorkQueue() = default;

  /// Queues an item and returns at once. Any thread.
  virtual void add(std::function<void()> item) = 0;
};

}  // namespace launcher
