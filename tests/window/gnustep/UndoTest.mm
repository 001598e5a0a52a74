// What a change of a field's text from elsewhere leaves to be taken back, which the platform's own
// fields decide for themselves.

#include <gtest/gtest.h>

#import "tests/window/mac/Stage.h"
#import "tests/window/mac/Windows.h"

namespace launcher {
namespace {

TEST(FieldUndoTest, ForgetsWhatWasTypedBeforeAFoundLocation) {
  clearStage();
  LauncherWindowOnScreen shown;
  type(shown.window(), @"https://a.long.name.example/");
  [shown.controller() updateSourceLocationWithSource:@"https://h/"];
  choose(shown.window(), @selector(undo:));
  EXPECT_EQ(textOf([shown.controller() vorxLocation]), "https://h/");
}

}  // namespace
}  // namespace launcher
