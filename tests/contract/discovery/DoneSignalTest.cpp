#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "discovery/DoneSignal.h"

namespace launcher {
namespace {

TEST(DoneSignalTest, ASignalBeforeTheWaitIsKept) {
  const auto done = makeDoneSignal();
  done->signal();
  done->wait();
}

TEST(DoneSignalTest, EverySignalEndsOneWait) {
  const auto done = makeDoneSignal();
  done->signal();
  done->signal();
  done->wait();
  done->wait();
}

TEST(DoneSignalTest, WaitsUntilTheSignal) {
  const auto done = makeDoneSignal();
  std::atomic<bool> signalled = false;
  std::thread signaller([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    signalled = true;
    done->signal();
  });
  done->wait();
  EXPECT_TRUE(signalled);
  signaller.join();
}

TEST(DoneSignalTest, EachOfTwoSignalsEndsTheNextWait) {
  const auto there = makeDoneSignal();
  const auto back = makeDoneSignal();
  std::thread partner([&] {
    for (int i = 0; i < 1000; ++i) {
      there->wait();
      back->signal();
    }
  });
  for (int i = 0; i < 1000; ++i) {
    there->signal();
    back->wait();
  }
  partner.join();
}

}  // namespace
}  // namespace launcher
