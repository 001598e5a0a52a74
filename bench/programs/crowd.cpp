// Processes that only sleep, to fill the process table: crowd COUNT. Says "ready" once they are
// there; they go when it is ended.

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <iostream>

int main(int argc, char** argv) {
  const int count = argc > 1 ? std::atoi(argv[1]) : 0;
  for (int i = 0; i < count; ++i) {
    const pid_t child = fork();
    if (child == 0) {
      prctl(PR_SET_PDEATHSIG, SIGKILL);
      pause();
      _exit(EXIT_SUCCESS);
    }
    if (child == -1) {
      std::cout << "only " << i << " processes can be had" << std::endl;
      return EXIT_FAILURE;
    }
  }
  std::cout << "ready" << std::endl;
  pause();
}
