// The queues on which work runs.

#include <atomic>
#include <thread>

#include "controller/linux/WorkQueues.h"
#include "tests/InThreads.h"
#include "tests/window/linux/WindowTest.h"

namespace launcher {
namespace {

class MainQueueTest : public WindowTest {
 protected:
  WorkQueue& queue_ = *world_.mainQueue;
};

TEST_F(MainQueueTest, RunsItemsLaterInOrderOnTheMainThread) {
  std::string order;
  std::thread([&] {
    queue_.add([&] { order += QThread::currentThread() == qApp->thread() ? "1" : "?"; });
    queue_.add([&] { order += "2"; });
  }).join();
  queue_.add([&] { order += "3"; });
  EXPECT_EQ(order, "");
  EXPECT_TRUE(eventually([&] { return order.size() == 3; }));
  EXPECT_EQ(order, "123");
}

TEST_F(MainQueueTest, RunsEveryItemOfManyThreads) {
  std::vector<int> lastOf(8, -1);
  int ran = 0;
  inThreads(8, [&](int thread) {
    for (int item = 0; item < 100; ++item) {
      queue_.add([&, thread, item] {
        EXPECT_EQ(std::exchange(lastOf.at(static_cast<std::size_t>(thread)), item), item - 1);
        ++ran;
      });
    }
  });
  EXPECT_TRUE(eventually([&] { return ran == 800; }));
}

TEST_F(MainQueueTest, AnItemPostedDuringAnAlertRunsAfterIt) {
  open();
  std::string order;
  whenAlertIsUp([&](QMessageBox&) {
    queue_.add([&] { order += " posted"; });
    std::thread([&] { queue_.add([&] { order += " from a thread"; }); }).join();
    QTest::qWait(50);  // the event loop would run them by now
    order += " dismissed";
  });
  queue_.add([&] {
    window_->showAlert({.message = "m", .informative = "i", .button = "OK"});
    order += " item's end";
  });
  queue_.add([&] { order += " waiting"; });
  EXPECT_TRUE(eventually([&] { return order.find("thread") != std::string::npos; }));
  EXPECT_EQ(order, " dismissed item's end waiting posted from a thread");
}

TEST_F(MainQueueTest, AnItemMayPostAnother) {
  std::string order;
  queue_.add([&] {
    queue_.add([&] { order += "2"; });
    order += "1";
  });
  EXPECT_TRUE(eventually([&] { return order.size() == 2; }));
  EXPECT_EQ(order, "12");
}

TEST_F(MainQueueTest, DestroysAnItemOnceItHasRun) {
  auto held = std::make_shared<int>();
  const std::weak_ptr<int> watched = held;
  queue_.add([held = std::move(held)] {});
  EXPECT_FALSE(watched.expired());
  EXPECT_TRUE(eventually([&] { return watched.expired(); }));
}

TEST(BackgroundQueueTest, RunsItemsAtTheSameTimeOffTheMainThread) {
  BackgroundQueue queue;
  std::atomic<int> arrived = 0;
  std::atomic<int> left = 0;
  for (int item = 0; item < 20; ++item) {
    queue.add([&] {
      ++arrived;
      while (arrived < 20) std::this_thread::yield();
      if (QThread::currentThread() != qApp->thread()) ++left;
    });
  }
  EXPECT_TRUE(eventually([&] { return left == 20; }));
}

TEST(BackgroundQueueTest, DestroysAnItemOnceItHasRun) {
  BackgroundQueue queue;
  auto held = std::make_shared<int>();
  const std::weak_ptr<int> watched = held;
  queue.add([held = std::move(held)] {});
  EXPECT_TRUE(eventually([&] { return watched.expired(); }));
}

}  // namespace
}  // namespace launcher
