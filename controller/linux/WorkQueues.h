#pragma once

#include "controller/WorkQueue.h"

namespace launcher {

/// Runs each item at once on a thread of its own. Items that still run when the queue is destroyed
/// go on.
class BackgroundQueue : public WorkQueue {
 public:
  void add(std::function<void()> item) override;
};

}  // namespace launcher
