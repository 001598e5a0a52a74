// Events that come while one of them is waited for.

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#import "controller/mac/OperationQueues.h"

namespace launcher {
namespace {

void post(NSEventType type) {
  [NSApp postEvent:[NSEvent mouseEventWithType:type
                                      location:NSZeroPoint
                                 modifierFlags:0
                                     timestamp:0
                                  windowNumber:0
                                       context:nil
                                   eventNumber:0
                                    clickCount:1
                                      pressure:1]
           atStart:NO];
}

NSEvent* take(NSUInteger mask, NSTimeInterval seconds) {
  return [NSApp nextEventMatchingMask:mask
                            untilDate:[NSDate dateWithTimeIntervalSinceNow:seconds]
                               inMode:NSEventTrackingRunLoopMode
                              dequeue:YES];
}

class EventQueueTest : public testing::Test {
 protected:
  void SetUp() override {
    while (take(NSAnyEventMask, 0) != nil) {
    }
  }
};

TEST_F(EventQueueTest, AnEventInThePlaceOfOneTakenMeanwhileIsSeen) {
  post(NSRightMouseDown);
  makeMainQueue()->add([] {
    EXPECT_NE(take(NSRightMouseDownMask, 0), nil);
    post(NSLeftMouseUp);
  });
  EXPECT_NE(take(NSLeftMouseUpMask, 5), nil);
}

TEST_F(EventQueueTest, OtherEventsStayInTheirOrder) {
  post(NSRightMouseDown);
  post(NSLeftMouseUp);
  post(NSRightMouseUp);
  EXPECT_EQ([take(NSLeftMouseUpMask, 5) type], NSLeftMouseUp);
  EXPECT_EQ(take(NSLeftMouseUpMask, 0), nil);
  EXPECT_EQ([take(NSAnyEventMask, 5) type], NSRightMouseDown);
  EXPECT_EQ([take(NSAnyEventMask, 5) type], NSRightMouseUp);
}

}  // namespace
}  // namespace launcher
