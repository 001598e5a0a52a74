// The search of the process table, as it is now. The floor reads every command name and only
// compares; the peer is the library behind ps and pgrep.

#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <libproc2/pids.h>
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

constexpr const char* kName = "vexlink";

bool isCommand(int folder, const char* process) {
  std::array<char, 32> path{};
  std::snprintf(path.data(), path.size(), "%s/comm", process);
  const int file = openat(folder, path.data(), O_RDONLY | O_CLOEXEC);
  if (file == -1) return false;
  std::array<char, 17> command{};
  const ssize_t size = read(file, command.data(), command.size() - 1);
  close(file);
  return size > 0 && std::strncmp(command.data(), kName, static_cast<std::size_t>(size) - 1) == 0;
}

int rawLoop() {
  DIR* listing = opendir("/proc");
  int found = -1;
  while (const dirent* entry = readdir(listing)) {
    if (std::isdigit(static_cast<unsigned char>(entry->d_name[0])) == 0) continue;
    if (isCommand(dirfd(listing), entry->d_name)) found = std::atoi(entry->d_name);
  }
  closedir(listing);
  return found;
}

int byLibrary() {
  std::array<pids_item, 2> items{PIDS_ID_PID, PIDS_CMD};
  pids_info* info = nullptr;
  procps_pids_new(&info, items.data(), static_cast<int>(items.size()));
  const pids_fetch* all = procps_pids_reap(info, PIDS_FETCH_TASKS_ONLY);
  int found = -1;
  for (int i = 0; i < all->counts->total && found == -1; ++i) {
    const pids_result* process = all->stacks[i]->head;
    if (std::strcmp(process[1].result.str, kName) == 0) found = process[0].result.s_int;
  }
  procps_pids_unref(&info);
  return found;
}

void ours(benchmark::State& state) {
  const auto table = makeProcessTable();
  while (state.KeepRunning()) {
    benchmark::DoNotOptimize(ProcessHelpers::getRunningProcess(kName, *table));
  }
}
BENCHMARK(ours)->Name("search/ours");

void floor(benchmark::State& state) {
  while (state.KeepRunning()) benchmark::DoNotOptimize(rawLoop());
}
BENCHMARK(floor)->Name("search/floor");

void library(benchmark::State& state) {
  while (state.KeepRunning()) benchmark::DoNotOptimize(byLibrary());
}
BENCHMARK(library)->Name("search/libproc2");

/// Empties the caches, as other work does before a keystroke.
void afterPause(benchmark::State& state) {
  while (state.KeepRunning()) {
    std::this_thread::sleep_for(std::chrono::milliseconds(250));
    const auto begun = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(rawLoop());
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begun;
    state.SetIterationTime(taken.count());
  }
}
BENCHMARK(afterPause)->Name("keystroke/floor")->UseManualTime()->Iterations(4);

}  // namespace
}  // namespace launcher
