// Replaces the system's start of a thread in a program that preloads it: while the file exists that
// NO_THREADS names, records each attempt and refuses it.

#include <dlfcn.h>
#include <pthread.h>
#include <unistd.h>

#include <cerrno>

#include "Recording.h"

extern "C" int pthread_create(pthread_t* thread, const pthread_attr_t* attributes,
                              void* (*work)(void*), void* argument) noexcept {
  if (access(variable("NO_THREADS"), F_OK) == 0) {
    record("refused");
    return EAGAIN;
  }
  const auto system =
      reinterpret_cast<decltype(&pthread_create)>(dlsym(RTLD_NEXT, "pthread_create"));
  return system(thread, attributes, work, argument);
}
