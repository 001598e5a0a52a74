// A double of the viewer and of the companion: the tests put it in place under either name. It
// writes a line to the file that RECORD names when it starts and when SIGTERM ends it.

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <string>

namespace {

void record(const char* file, const std::string& event) {
  const std::string line = std::to_string(getpid()) + " " + event + "\n";
  const int descriptor = open(file, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
  const bool written =
      write(descriptor, line.data(), line.size()) == static_cast<ssize_t>(line.size());
  close(descriptor);
  if (!written) std::exit(EXIT_FAILURE);
}

}  // namespace

int main() {
  const char* file = std::getenv("RECORD");
  if (file == nullptr) return EXIT_FAILURE;

  sigset_t terminate;
  sigemptyset(&terminate);
  sigaddset(&terminate, SIGTERM);
  sigprocmask(SIG_BLOCK, &terminate, nullptr);

  record(file, "started");
  int signal = 0;
  sigwait(&terminate, &signal);
  record(file, "SIGTERM");
}
