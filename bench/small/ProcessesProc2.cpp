// The same search by the library behind ps and pgrep.

#include <benchmark/benchmark.h>
#include <libproc2/pids.h>

#include <array>
#include <cstring>

namespace launcher {
namespace {

int find(const char* name) {
  std::array<pids_item, 2> items{PIDS_ID_PID, PIDS_CMD};
  pids_info* info = nullptr;
  procps_pids_new(&info, items.data(), static_cast<int>(items.size()));
  const pids_fetch* all = procps_pids_reap(info, PIDS_FETCH_TASKS_ONLY);
  int found = -1;
  for (int i = 0; i < all->counts->total && found == -1; ++i) {
    const pids_result* process = all->stacks[i]->head;
    if (std::strcmp(process[1].result.str, name) == 0) found = process[0].result.s_int;
  }
  procps_pids_unref(&info);
  return found;
}

void search(benchmark::State& state) {
  while (state.KeepRunning()) benchmark::DoNotOptimize(find("vexlink"));
}
BENCHMARK(search)->Name("search/libproc2");

}  // namespace
}  // namespace launcher
