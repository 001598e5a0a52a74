// The search of the process table, as it is now. The floor reads every command name and does
// nothing with it but compare.

#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cctype>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

#include "process/ProcessHelpers.h"
#include "process/ProcessTable.h"

namespace launcher {
namespace {

void searchOurs(benchmark::State& state) {
  const auto table = makeProcessTable();
  while (state.KeepRunning()) {
    benchmark::DoNotOptimize(ProcessHelpers::getRunningProcess("vexlink", *table));
  }
}
BENCHMARK(searchOurs)->Name("search/ours");

bool isCommand(int folder, const char* process, const char* name) {
  std::array<char, 32> path{};
  std::snprintf(path.data(), path.size(), "%s/comm", process);
  const int file = openat(folder, path.data(), O_RDONLY | O_CLOEXEC);
  if (file == -1) return false;
  std::array<char, 17> command{};
  const ssize_t size = read(file, command.data(), command.size() - 1);
  close(file);
  return size > 0 && std::strncmp(command.data(), name, static_cast<std::size_t>(size) - 1) == 0;
}

int rawLoop(const char* name) {
  DIR* listing = opendir("/proc");
  while (const dirent* entry = readdir(listing)) {
    if (std::isdigit(static_cast<unsigned char>(entry->d_name[0])) == 0) continue;
    if (!isCommand(dirfd(listing), entry->d_name, name)) continue;
    const int found = std::atoi(entry->d_name);
    closedir(listing);
    return found;
  }
  closedir(listing);
  return -1;
}

void searchFloor(benchmark::State& state) {
  while (state.KeepRunning()) benchmark::DoNotOptimize(rawLoop("vexlink"));
}
BENCHMARK(searchFloor)->Name("search/floor");

/// As at a keystroke: what was near has been pushed away meanwhile.
void searchAfterPause(benchmark::State& state) {
  while (state.KeepRunning()) {
    std::this_thread::sleep_for(std::chrono::milliseconds(250));
    const auto begun = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(rawLoop("vexlink"));
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begun;
    state.SetIterationTime(taken.count());
  }
}
BENCHMARK(searchAfterPause)->Name("keystroke/floor")->UseManualTime()->Iterations(8);

}  // namespace
}  // namespace launcher
