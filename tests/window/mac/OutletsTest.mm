// An outlet that is read without being connected stops the program.

#include <gtest/gtest.h>

#import "tests/window/mac/Stage.h"

namespace launcher {
namespace {

ViewController* unconnected() {
  return [[[ViewController alloc] initWithNibName:@"ViewController" bundle:nil] autorelease];
}

const char* const report = "fatal error: outlet not connected: file ViewController, line";

TEST(OutletsDeathTest, EveryOutletIsRequired) {
  EXPECT_DEATH([unconnected() launchButton], report);
  EXPECT_DEATH([unconnected() infoLabel], report);
  EXPECT_DEATH([unconnected() vorxLocation], report);
  EXPECT_DEATH([unconnected() ipAddress], report);
}

TEST(OutletsDeathTest, OperationsNeedTheOutletsThatTheyRead) {
  EXPECT_DEATH([unconnected() viewDidLoad], report);
  EXPECT_DEATH([unconnected() updateState], report);
  EXPECT_DEATH([unconnected() launchButtonClick:nil], report);
}

#if __has_feature(objc_arc_weak)
/// AppKit's stand-in knows no weak references.
TEST(OutletsDeathTest, AnOutletDisconnectsWhenItsControlIsDestroyed) {
  ViewController* controller = unconnected();
  @autoreleasepool {
    NSTextField* field = [[NSTextField alloc] init];
    [controller setVorxLocation:field];
    [field release];
  }
  EXPECT_DEATH([controller vorxLocation], report);
}
#endif

TEST(OutletsTest, AreWrittenAndReadBack) {
  ViewController* controller = unconnected();
  NSButton* button = [[[NSButton alloc] init] autorelease];
  NSTextField* field = [[[NSTextField alloc] init] autorelease];
  const NSUInteger before = [field retainCount];
  [controller setLaunchButton:button];
  [controller setInfoLabel:field];
  [controller setVorxLocation:field];
  [controller setIpAddress:field];
  EXPECT_EQ([controller launchButton], button);
  EXPECT_EQ([controller infoLabel], field);
  EXPECT_EQ([controller vorxLocation], field);
  EXPECT_EQ([controller ipAddress], field);
  EXPECT_EQ([field retainCount], before);
}

}  // namespace
}  // namespace launcher
