// What a screen reader says of the status line. AppKit hands it to no test.

#include <gtest/gtest.h>

#import "tests/gnustep/Announcements.h"
#import "tests/window/mac/Stage.h"
#import "tests/window/mac/Windows.h"

namespace launcher {
namespace {

using Texts = std::vector<std::string>;

class AnnouncementTest : public testing::Test {
 protected:
  AnnouncementTest() {
    clearStage();
    announcements().clear();
  }
};

TEST_F(AnnouncementTest, TheStatusLineIsSaidWhenItChanges) {
  LauncherWindowOnScreen shown;
  EXPECT_EQ(announcements(), Texts{});
  type(shown.window(), @"h");
  EXPECT_EQ(announcements(), Texts{});
  type(shown.window(), @"ttps://h/");
  type(shown.window(), @"path");
  EXPECT_EQ(announcements(), Texts{"Press launch button to start remote control"});
}

TEST_F(AnnouncementTest, NothingIsSaidWithoutAWindow) {
  ViewController* controller = loadedController();
  [[controller vorxLocation] setStringValue:@"https://h/"];
  [controller updateState];
  EXPECT_EQ(textOf([controller infoLabel]), "Press launch button to start remote control");
  EXPECT_EQ(announcements(), Texts{});
}

}  // namespace
}  // namespace launcher
