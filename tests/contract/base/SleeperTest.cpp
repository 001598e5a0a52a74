#include <gtest/gtest.h>
#include <pthread.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <thread>

#include "base/Sleeper.h"

namespace launcher {
namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

double measuredSleep(double seconds) {
  const auto start = Clock::now();
  makeSleeper()->sleep(seconds);
  return Seconds(Clock::now() - start).count();
}

TEST(SleeperTest, SleepsAtLeastTheGivenTime) {
  EXPECT_GE(measuredSleep(0.0), 0.0);
  EXPECT_GE(measuredSleep(0.05), 0.05);
}

TEST(SleeperTest, SleepsOnAfterASignal) {
  struct sigaction ignoring = {};
  struct sigaction before = {};
  ignoring.sa_handler = [](int) {};
  sigaction(SIGUSR1, &ignoring, &before);

  std::atomic<bool> awake = false;
  double slept = 0;
  std::thread sleeper([&] {
    slept = measuredSleep(0.2);
    awake = true;
  });
  while (!awake) {
    pthread_kill(sleeper.native_handle(), SIGUSR1);
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  sleeper.join();
  sigaction(SIGUSR1, &before, nullptr);

  EXPECT_GE(slept, 0.2);
}

}  // namespace
}  // namespace launcher
