// The "About" panel.

#import "app/mac/AboutPanel.h"

#include <gtest/gtest.h>

#import "tests/window/mac/Stage.h"
#import "tests/window/mac/Windows.h"

namespace launcher {
namespace {

NSWindow* visibleWindowBesides(NSWindow* known) {
  for (NSWindow* window in [NSApp windows]) {
    const bool isPanel = [window isKindOfClass:[NSPanel class]];
    if (isPanel && window != known && [window isVisible]) return window;
  }
  return nil;
}

TEST(AboutTest, StandsAboveTheFloatingWindow) {
  clearStage();
  LauncherWindowOnScreen shown;
  [[[[AboutPanel alloc] init] autorelease] show:nil];
  NSWindow* about = visibleWindowBesides(shown.window());
  ASSERT_NE(about, nil);
  EXPECT_GE([about level], [shown.window() level]);
  EXPECT_EQ([shown.window() level], NSFloatingWindowLevel);
  [about orderOut:nil];
}

}  // namespace
}  // namespace launcher
