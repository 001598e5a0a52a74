#pragma once

// The counting semaphore of macOS's libdispatch.

#include <semaphore>

using dispatch_semaphore_t = std::counting_semaphore<>*;

inline constexpr unsigned long long DISPATCH_TIME_FOREVER = ~0ULL;

inline dispatch_semaphore_t dispatch_semaphore_create(long value) {
  return new std::counting_semaphore<>(value);
}

inline void dispatch_semaphore_signal(dispatch_semaphore_t semaphore) { semaphore->release(); }

inline void dispatch_semaphore_wait(dispatch_semaphore_t semaphore, unsigned long long /*time*/) {
  semaphore->acquire();
}

inline void dispatch_release(dispatch_semaphore_t semaphore) { delete semaphore; }
