#pragma once

#include <memory>

namespace launcher {

/// A counting semaphore that starts at 0. Any thread.
class Semaphore {
 public:
  Semaphore();
  ~Semaphore();
  Semaphore(const Semaphore&) = delete;
  Semaphore& operator=(const Semaphore&) = delete;

  void signal();

  /// Blocks without a time limit until there is a signal, and takes it.
  void wait();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace launcher
