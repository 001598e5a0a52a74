// Stands in for the viewer. Writes its arguments, one a line, to RESOURCES/started-PID and runs
// until SIGTERM. Ignores SIGTERM if there is a file RESOURCES/stubborn.

#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

int main(int argc, char** argv) {
  alarm(300);
  const std::string resources = argv[argc - 1];
  if (std::filesystem::exists(resources + "/stubborn")) std::signal(SIGTERM, SIG_IGN);

  const std::string draft = resources + "/draft-" + std::to_string(getpid());
  std::ofstream file(draft);
  for (int i = 0; i < argc; ++i) file << argv[i] << '\n';
  file.close();
  const std::string record = resources + "/started-" + std::to_string(getpid());
  std::rename(draft.c_str(), record.c_str());
  pause();
}
