#include "discovery/Semaphore.h"

#include <dispatch/dispatch.h>

namespace launcher {

struct Semaphore::State {
  dispatch_semaphore_t semaphore = dispatch_semaphore_create(0);
};

Semaphore::Semaphore() : state_(std::make_unique<State>()) {}

Semaphore::~Semaphore() { dispatch_release(state_->semaphore); }

void Semaphore::signal() { dispatch_semaphore_signal(state_->semaphore); }

void Semaphore::wait() { dispatch_semaphore_wait(state_->semaphore, DISPATCH_TIME_FOREVER); }

}  // namespace launcher
