#pragma once

#include "controller/WorkQueue.h"

namespace launcher {

/// Runs each item at once on its own thread; while the system has no thread to give, tries again
/// every second. Destroying the queue does not stop running items.
class BackgroundQueue : public WorkQueue {
 public:
  void add(std::function<void()> item) override;
};

}  // namespace launcher
