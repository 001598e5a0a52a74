#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include <cstdio>

#include "tests/window/mac/Toolkit.h"

namespace {

// The exit status that makes CTest skip the suite.
constexpr int skipped = 77;

}  // namespace

int main(int argc, char** argv) {
  @autoreleasepool {
    testing::InitGoogleTest(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    if (const auto reason = launcher::prepareToolkit()) {
      std::puts(reason->c_str());
      return skipped;
    }
    [[NSApplication sharedApplication] finishLaunching];
    return RUN_ALL_TESTS();
  }
}
