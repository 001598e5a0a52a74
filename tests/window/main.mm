#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include "app/PrepareToolkit.h"
#include "tests/window/Screen.h"

namespace {

/// Every test shows windows, or has some shown.
class ScreenEnvironment : public testing::Environment {
  void SetUp() override {
    if (!launcher::hasScreen()) GTEST_SKIP() << "no screen to show windows on";
    launcher::prepareToolkit();
    [[NSApplication sharedApplication] finishLaunching];
  }
};

}  // namespace

int main(int argc, char** argv) {
  @autoreleasepool {
    testing::InitGoogleTest(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    testing::AddGlobalTestEnvironment(new ScreenEnvironment);
    return RUN_ALL_TESTS();
  }
}
