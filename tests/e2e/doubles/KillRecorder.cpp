// Replaces the system's `kill` in a program that preloads it: records whom each signal is for, then
// passes the signal on.

#include <dlfcn.h>

#include <csignal>

#include "Recording.h"

extern "C" int kill(pid_t process, int signal) noexcept {
  record(("kill:" + std::to_string(process)).c_str());
  const auto system = reinterpret_cast<decltype(&kill)>(dlsym(RTLD_NEXT, "kill"));
  return system(process, signal);
}
