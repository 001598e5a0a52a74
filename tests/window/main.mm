#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#import "app/gnustep/AppKitLikeness.h"
#include "app/gnustep/Display.h"

namespace {

/// Every test shows windows, or has some shown.
class DisplayEnvironment : public testing::Environment {
  void SetUp() override {
    if (!launcher::hasDisplay()) GTEST_SKIP() << "no display to show windows on";
    launcher::installAppKitLikeness();
    [NSApp finishLaunching];
  }
};

}  // namespace

int main(int argc, char** argv) {
  @autoreleasepool {
    testing::InitGoogleTest(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    testing::AddGlobalTestEnvironment(new DisplayEnvironment);
    return RUN_ALL_TESTS();
  }
}
