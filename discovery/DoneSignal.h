#pragma once

#include <memory>

namespace launcher {

/// A counting semaphore that starts at 0. Any thread.
class DoneSignal {
 public:
  virtual ~DoneSignal() = default;
  virtual void signal() = 0;
  /// Blocks, without a time limit, until a signal can be taken.
  virtual void wait() = 0;
};

std::unique_ptr<DoneSignal> makeDoneSignal();

}  // namespace launcher
