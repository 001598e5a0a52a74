#pragma once

#include <sys/wait.h>

#include <cerrno>
#include <csignal>

namespace launcher {

/// Whether the process exists. A zombie still does.
inline bool isThere(pid_t pid) { return pid > 0 && kill(pid, 0) == 0; }

/// Signals one process. `kill` takes 0 and negative numbers for many processes; they are ignored
/// here.
inline void sendSignal(pid_t pid, int signal) {
  if (pid > 0) kill(pid, signal);
}

/// Whether this process has no child left, neither a running one nor a zombie.
inline bool hasNoChildren() {
  siginfo_t info;
  return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == -1 && errno == ECHILD;
}

}  // namespace launcher
