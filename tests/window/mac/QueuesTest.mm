// The queues on which work runs.

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <string>
#include <thread>

#import "controller/mac/OperationQueues.h"
#import "tests/window/mac/Stage.h"

namespace launcher {
namespace {

class QueuesTest : public testing::Test {
 protected:
  void TearDown() override { [operations_ release]; }

  NSOperationQueue* operations_ = [[NSOperationQueue alloc] init];
  std::unique_ptr<WorkQueue> background_ = makeWorkQueue(operations_);
  std::unique_ptr<WorkQueue> main_ = makeMainQueue();
};

TEST_F(QueuesTest, BackgroundItemsRunOffTheMainThread) {
  std::atomic<bool> onMainThread = true;
  background_->add([&] { onMainThread = [NSThread isMainThread]; });
  [operations_ waitUntilAllOperationsAreFinished];
  EXPECT_FALSE(onMainThread);
}

TEST_F(QueuesTest, BackgroundItemsMayRunAtTheSameTime) {
  std::atomic<int> arrived = 0;
  const auto meetTheOther = [&arrived] {
    ++arrived;
    while (arrived < 2) std::this_thread::yield();
  };
  background_->add(meetTheOther);
  background_->add(meetTheOther);
  [operations_ waitUntilAllOperationsAreFinished];
  EXPECT_EQ(arrived, 2);
}

TEST_F(QueuesTest, ABackgroundItemDoesNotWaitBehindABusyOne) {
  std::atomic<bool> busy = false;
  std::atomic<bool> released = false;
  std::atomic<bool> ran = false;
  background_->add([&] {
    busy = true;
    while (!released) std::this_thread::yield();
  });
  EXPECT_TRUE(eventually([&] { return busy.load(); }));
  background_->add([&] { ran = true; });
  EXPECT_TRUE(eventually([&] { return ran.load(); }));
  released = true;
  [operations_ waitUntilAllOperationsAreFinished];
}

TEST_F(QueuesTest, AnItemIsDestroyedWhereItRan) {
  auto held = std::make_shared<int>();
  const std::weak_ptr<int> watched = held;
  background_->add([held = std::move(held)] {});
  [operations_ waitUntilAllOperationsAreFinished];
  EXPECT_TRUE(watched.expired());
}

TEST_F(QueuesTest, MainItemsRunLaterOnTheMainThreadInOrder) {
  std::string order;
  bool onMainThread = false;
  main_->add([&] {
    onMainThread = [NSThread isMainThread];
    order += "1";
  });
  main_->add([&] { order += "2"; });
  main_->add([&] { order += "3"; });
  EXPECT_EQ(order, "");
  EXPECT_TRUE(eventually([&] { return order.size() == 3; }));
  EXPECT_EQ(order, "123");
  EXPECT_TRUE(onMainThread);
}

TEST_F(QueuesTest, MainItemsOfAnotherThreadRunOnTheMainThreadInOrder) {
  std::string order;
  bool onMainThread = false;
  std::thread([&] {
    main_->add([&] {
      onMainThread = [NSThread isMainThread];
      order += "1";
    });
    main_->add([&] { order += "2"; });
  }).join();
  EXPECT_EQ(order, "");
  EXPECT_TRUE(eventually([&] { return order.size() == 2; }));
  EXPECT_EQ(order, "12");
  EXPECT_TRUE(onMainThread);
}

}  // namespace
}  // namespace launcher
