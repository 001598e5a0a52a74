#pragma once

#include <thread>
#include <vector>

namespace launcher {

/// Runs the work in `count` threads at once and waits for them. Each call gets its thread's number.
///
///     inThreads(4, [&](int number) { ... });
template <class Work>
void inThreads(int count, Work work) {
  std::vector<std::thread> threads(static_cast<std::size_t>(count));
  int number = 0;
  for (std::thread& thread : threads) thread = std::thread(work, number++);
  for (std::thread& thread : threads) thread.join();
}

}  // namespace launcher
