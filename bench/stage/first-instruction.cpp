// Stands in for the viewer: writes when it began, and its number, into the file "begun" in the
// folder that it is given as a viewer is, with -r, and sleeps until it is ended.

#include <unistd.h>

#include <fstream>
#include <string>

#include "bench/stage/Clock.h"

int main(int argc, char** argv) {
  const std::int64_t begun = launcher::monotonicNow();
  const std::string folder = argc > 6 ? argv[6] : ".";
  std::ofstream(folder + "/begun", std::ios::app) << begun << ' ' << getpid() << std::endl;
  pause();
}
