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

/// The main thread's queue. Its items run one after another: an item that is added while another
/// shows an alert runs after that alert is dismissed.
std::unique_ptr<WorkQueue> makeMainQueue();

}  // namespace launcher
