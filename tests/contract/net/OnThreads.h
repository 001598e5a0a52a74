#pragma once

#include <atomic>
#include <thread>
#include <vector>

namespace launcher {

/// How many checks succeed when `threads` threads at once make `rounds` checks each.
template <typename Check>
int successesOnThreads(int threads, int rounds, const Check& check) {
  std::atomic<int> successes = 0;
  const auto work = [&] {
    for (int round = 0; round < rounds; ++round) successes += check() ? 1 : 0;
  };
  std::vector<std::thread> running(static_cast<std::size_t>(threads));
  for (std::thread& thread : running) thread = std::thread(work);
  for (std::thread& thread : running) thread.join();
  return successes;
}

}  // namespace launcher
