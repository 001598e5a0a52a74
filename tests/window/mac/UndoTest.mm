// Changes of a field's text taken back, and made again.

#include <gtest/gtest.h>

#import "tests/window/mac/Stage.h"
#import "tests/window/mac/Windows.h"

namespace launcher {
namespace {

class UndoTest : public testing::Test {
 protected:
  void SetUp() override { clearStage(); }
};

TEST_F(UndoTest, UndoesAndRedoesTyping) {
  LauncherWindowOnScreen shown;
  type(shown.window(), @"https://h/");
  ASSERT_TRUE([[shown.controller() launchButton] isEnabled]);

  choose(shown.window(), @selector(undo:));
  EXPECT_EQ(textOf([shown.controller() vorxLocation]), "");
  EXPECT_FALSE([[shown.controller() launchButton] isEnabled]);

  choose(shown.window(), @selector(redo:));
  EXPECT_EQ(textOf([shown.controller() vorxLocation]), "https://h/");
  EXPECT_TRUE([[shown.controller() launchButton] isEnabled]);
}

TEST_F(UndoTest, UndoesOnlyInTheEditedField) {
  LauncherWindowOnScreen shown;
  type(shown.window(), @"https://a.long.name.example/");
  tab(shown.window());
  type(shown.window(), @"1");
  choose(shown.window(), @selector(undo:));
  choose(shown.window(), @selector(undo:));
  EXPECT_EQ(textOf([shown.controller() vorxLocation]), "https://a.long.name.example/");
  EXPECT_EQ(textOf([shown.controller() ipAddress]), "");
}

}  // namespace
}  // namespace launcher
