// A double of the viewer and of the companion: the tests put it in place under either name. It
// records its start and each SIGTERM; the first one ends it, unless STUBBORN is set.

#include <csignal>
#include <cstdlib>

#include "Recording.h"

int main() {
  sigset_t terminate;
  sigemptyset(&terminate);
  sigaddset(&terminate, SIGTERM);
  sigprocmask(SIG_BLOCK, &terminate, nullptr);

  record("started");
  do {
    int signal = 0;
    sigwait(&terminate, &signal);
    record("SIGTERM");
  } while (std::getenv("STUBBORN") != nullptr);
}
