#pragma once

#include <chrono>
#include <thread>

namespace launcher {

/// Waits until the condition holds, for at most a minute. Returns whether it held in time.
///
///     EXPECT_TRUE(eventually([&] { return exits == 1; }));
template <class Condition>
bool eventually(Condition condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(1);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return true;
}

}  // namespace launcher
