// How long a controller lives.

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#import "controller/mac/OperationQueues.h"
#import "controller/mac/WindowBridge.h"
#import "tests/window/mac/Stage.h"

namespace {

std::atomic<int> ended = 0;
std::atomic<bool> endedOnMainThread = false;

}  // namespace

@interface WatchedController : ViewController
@end

@implementation WatchedController

- (void)dealloc {
  endedOnMainThread = [NSThread isMainThread];
  ++ended;
  [super dealloc];
}

@end

namespace launcher {
namespace {

class LifetimeTest : public testing::Test {
 protected:
  void SetUp() override {
    clearStage();
    ended = 0;
    endedOnMainThread = false;
  }

  static WatchedController* loaded() {
    @autoreleasepool {
      WatchedController* controller = [[WatchedController alloc] initWithNibName:@"ViewController"
                                                                          bundle:nil];
      [controller view];
      finishWork(controller);
      return controller;
    }
  }
};

TEST_F(LifetimeTest, EndsWithItsLastOwner) {
  WatchedController* controller = loaded();
  settle();
  EXPECT_EQ(ended, 0);
  [controller release];
  EXPECT_TRUE(eventually([] { return ended == 1; }));
}

TEST_F(LifetimeTest, ItsEndTerminatesNothing) {
  LaunchControl::sharedInstance().launchProc("h", "1.2.3.4");
  const auto viewer = stage().starter.starts.at(0).process;
  [loaded() release];
  EXPECT_TRUE(eventually([] { return ended == 1; }));
  EXPECT_EQ(viewer->terminations, 0);
  EXPECT_EQ(LaunchControl::sharedInstance().runningProcess(), viewer);
}

TEST_F(LifetimeTest, ItsEndCancelsNothing) {
  WatchedController* controller = loaded();
  NSOperationQueue* queue = [[controller backgroundQueue] retain];
  [queue setSuspended:YES];
  bool ran = false;
  makeWorkQueue(queue)->add([&ran] { ran = true; });
  [controller release];
  EXPECT_TRUE(eventually([] { return ended == 1; }));
  [queue setSuspended:NO];
  [queue waitUntilAllOperationsAreFinished];
  EXPECT_TRUE(ran);
  [queue release];
}

TEST_F(LifetimeTest, AQueuedItemKeepsTheControllerAlive) {
  WatchedController* controller = loaded();
  [controller updateSourceLocationWithSource:@"https://h/"];
  [controller release];
  EXPECT_EQ(ended, 0);
  EXPECT_TRUE(eventually([] { return ended == 1; }));
}

TEST_F(LifetimeTest, ABackgroundItemKeepsTheControllerAlive) {
  WatchedController* controller = loaded();
  [[controller backgroundQueue] setSuspended:YES];
  [controller searchDMGs];
  [controller retain];
  [controller release];
  NSOperationQueue* queue = [[controller backgroundQueue] retain];
  [controller release];
  settle();
  EXPECT_EQ(ended, 0);
  [queue setSuspended:NO];
  EXPECT_TRUE(eventually([] { return ended == 1; }));
  EXPECT_TRUE(endedOnMainThread);
  [queue release];
}

TEST_F(LifetimeTest, ATokenDroppedOnAnotherThreadReleasesOnTheMainOne) {
  WatchedController* controller = loaded();
  std::shared_ptr<void> token = WindowBridge(controller).keepAlive();
  [controller release];
  settle();
  EXPECT_EQ(ended, 0);
  std::thread([&token] { token.reset(); }).join();
  EXPECT_EQ(ended, 0);
  EXPECT_TRUE(eventually([] { return ended == 1; }));
  EXPECT_TRUE(endedOnMainThread);
}

}  // namespace
}  // namespace launcher
