// Stands in for the viewer. Writes its start time, in nanoseconds of the monotonic clock, and its
// process identifier into the file "begun" in the folder that follows -r. Then sleeps until it is
// ended.

#include <unistd.h>

#include <ctime>
#include <fstream>
#include <string>

int main(int argc, char** argv) {
  timespec begun{};
  clock_gettime(CLOCK_MONOTONIC, &begun);
  const std::string folder = argc > 6 ? argv[6] : ".";
  std::ofstream(folder + "/begun", std::ios::app)
      << begun.tv_sec * 1'000'000'000 + begun.tv_nsec << ' ' << getpid() << std::endl;
  pause();
}
