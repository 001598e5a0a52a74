// What the controller does to its view.

#import <CoreGraphics/CoreGraphics.h>
#import <QuartzCore/QuartzCore.h>

#include <gtest/gtest.h>

#include "base/Url.h"
#import "tests/window/mac/Stage.h"
#import "tests/window/mac/Windows.h"

namespace launcher {
namespace {

class SetupTest : public testing::Test {
 protected:
  void SetUp() override { clearStage(); }
};

TEST_F(SetupTest, GivesBothFieldsABorderedRoundedLayer) {
  ViewController* controller = loadedController();
  for (NSTextField* field in @[ [controller vorxLocation], [controller ipAddress] ]) {
    ASSERT_NE([field layer], nil);
    EXPECT_EQ([[field layer] borderWidth], 1.0);
    EXPECT_EQ([[field layer] cornerRadius], 5.0);
  }
  EXPECT_NE([[controller vorxLocation] layer], [[controller ipAddress] layer]);
}

TEST_F(SetupTest, ColoursTheLocationFieldOnly) {
  ViewController* controller = loadedController();
  EXPECT_TRUE(CGColorEqualToColor([[[controller vorxLocation] layer] backgroundColor],
                                  [[NSColor whiteColor] CGColor]));
  EXPECT_EQ([[[controller ipAddress] layer] backgroundColor], nullptr);
}

TEST_F(SetupTest, DoesNotEvaluate) {
  ViewController* controller = loadedController();
  EXPECT_FALSE([[controller launchButton] isEnabled]);
  EXPECT_EQ([[[controller ipAddress] layer] backgroundColor], nullptr);
}

TEST_F(SetupTest, RecordsWhetherTheViewerRuns) {
  stage().processes.processes = {processRecord(7, "vexlink")};
  loadedController();
  EXPECT_EQ(LaunchControl::sharedInstance().runningAppPID(), 7);
  stage().processes.processes.clear();
  loadedController();
  EXPECT_EQ(LaunchControl::sharedInstance().runningAppPID(), -1);
}

TEST_F(SetupTest, SearchesForTheServerAndShowsIt) {
  stage().bundle.folder = "/V/VorxLauncher.app";
  stage().listing =
      "<plist><dict><key>images</key><array><dict><key>image-path</key><string>/i.dmg</string>"
      "<key>system-entities</key><array><dict><key>mount-point</key><string>/V</string></dict>"
      "</array></dict></array></dict></plist>";
  stage().origin.values["/i.dmg"] = "<plist><array><string>https://h/D/F</string></array></plist>";
  ViewController* controller = loadedController();
  EXPECT_EQ(textOf([controller vorxLocation]), "https://h/D/");
  EXPECT_TRUE([[controller launchButton] isEnabled]);
}

TEST_F(SetupTest, FloatsOnEveryShowing) {
  LauncherWindowOnScreen shown;
  EXPECT_EQ([shown.window() level], NSFloatingWindowLevel);
  [shown.window() orderOut:nil];
  [shown.window() setLevel:NSNormalWindowLevel];
  [shown.window() orderFront:nil];
  EXPECT_TRUE(eventually([&shown] { return [shown.window() level] == NSFloatingWindowLevel; }));
}

TEST_F(SetupTest, WithoutAWindowNothingFloats) {
  ViewController* controller = loadedController();
  ASSERT_EQ([[controller view] window], nil);
  [controller viewWillAppear];
}

}  // namespace
}  // namespace launcher
