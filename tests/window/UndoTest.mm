// Changes of a field's text taken back, and made again.

#include <gtest/gtest.h>

#import "tests/window/Stage.h"
#import "tests/window/Windows.h"

namespace launcher {
namespace {

class UndoTest : public testing::Test {
 protected:
  void SetUp() override { clearStage(); }
};

/// Sends what a menu item sends.
void choose(SEL action) {
  settle();
  [NSApp sendAction:action to:nil from:nil];
  settle();
}

TEST_F(UndoTest, TakesTypingBackAndMakesItAgain) {
  LauncherWindowOnScreen shown;
  type(shown.window(), @"https://h/");
  ASSERT_TRUE([[shown.controller() launchButton] isEnabled]);

  choose(@selector(undo:));
  EXPECT_EQ(textOf([shown.controller() vorxLocation]), "");
  EXPECT_FALSE([[shown.controller() launchButton] isEnabled]);

  choose(@selector(redo:));
  EXPECT_EQ(textOf([shown.controller() vorxLocation]), "https://h/");
  EXPECT_TRUE([[shown.controller() launchButton] isEnabled]);
}

TEST_F(UndoTest, KeepsToTheFieldThatIsEdited) {
  LauncherWindowOnScreen shown;
  type(shown.window(), @"https://a.long.name.example/");
  tab(shown.window());
  type(shown.window(), @"1");
  choose(@selector(undo:));
  choose(@selector(undo:));
  EXPECT_EQ(textOf([shown.controller() vorxLocation]), "https://a.long.name.example/");
  EXPECT_EQ(textOf([shown.controller() ipAddress]), "");
}

TEST_F(UndoTest, ForgetsWhatWasTypedBeforeAFoundLocation) {
  LauncherWindowOnScreen shown;
  type(shown.window(), @"https://a.long.name.example/");
  [shown.controller() updateSourceLocationWithSource:@"https://h/"];
  settle();
  choose(@selector(undo:));
  EXPECT_EQ(textOf([shown.controller() vorxLocation]), "https://h/");
}

}  // namespace
}  // namespace launcher
