#pragma once

#include <functional>
#include <memory>

namespace launcher {

/// Runs items of work later.
class WorkQueue {
 public:
  virtual ~WorkQueue() = default;

  /// Queues an item and returns at once. Any thread.
  virtual void add(std::function<void()> item) = 0;
};

/// The queue of the main thread. Its items run one after another: one that is added while another
/// shows an alert runs after that alert has been dismissed.
std::unique_ptr<WorkQueue> makeMainQueue();

}  // namespace launcher
