#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "discovery/Semaphore.h"

namespace launcher {
namespace {

TEST(SemaphoreTest, ASignalBeforeTheWaitIsKept) {
  Semaphore done;
  done.signal();
  done.wait();
}

TEST(SemaphoreTest, EverySignalEndsOneWait) {
  Semaphore done;
  done.signal();
  done.signal();
  done.wait();
  done.wait();
}

TEST(SemaphoreTest, WaitsUntilTheSignal) {
  Semaphore done;
  std::atomic<bool> signalled = false;
  std::thread signaller([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    signalled = true;
    done.signal();
  });
  done.wait();
  EXPECT_TRUE(signalled);
  signaller.join();
}

TEST(SemaphoreTest, EachOfTwoSignalsEndsTheNextWait) {
  Semaphore there;
  Semaphore back;
  std::thread partner([&] {
    for (int i = 0; i < 1000; ++i) {
      there.wait();
      back.signal();
    }
  });
  for (int i = 0; i < 1000; ++i) {
    there.signal();
    back.wait();
  }
  partner.join();
}

}  // namespace
}  // namespace launcher
