#include "discovery/Semaphore.h"

#include <condition_variable>
#include <mutex>

namespace launcher {

struct Semaphore::State {
  std::mutex mutex;
  std::condition_variable changed;
  int count = 0;
};

Semaphore::Semaphore() : state_(std::make_unique<State>()) {}

Semaphore::~Semaphore() = default;

void Semaphore::signal() {
  const std::lock_guard lock(state_->mutex);
  ++state_->count;
  state_->changed.notify_one();
}

void Semaphore::wait() {
  std::unique_lock lock(state_->mutex);
  state_->changed.wait(lock, [this] { return state_->count > 0; });
  --state_->count;
}

}  // namespace launcher
