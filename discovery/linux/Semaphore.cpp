#include "discovery/Semaphore.h"

#include <semaphore.h>

#include <cerrno>

namespace launcher {

struct Semaphore::State {
  sem_t semaphore{};
};

Semaphore::Semaphore() : state_(std::make_unique<State>()) { sem_init(&state_->semaphore, 0, 0); }

Semaphore::~Semaphore() { sem_destroy(&state_->semaphore); }

void Semaphore::signal() { sem_post(&state_->semaphore); }

void Semaphore::wait() {
  while (sem_wait(&state_->semaphore) == -1 && errno == EINTR) {
  }
}

}  // namespace launcher
