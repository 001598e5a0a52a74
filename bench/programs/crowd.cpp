// Fills the process table with processes that only sleep: crowd COUNT. Prints "ready" once they
// run. They end when this program ends.

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
