// What the alerts of this port do themselves.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#import "controller/mac/WindowBridge.h"
#import "tests/window/mac/Alerts.h"
#import "tests/window/mac/Stage.h"
#import "tests/window/mac/Windows.h"

namespace launcher {
namespace {

using Texts = std::vector<std::string>;

class AlertPanelTest : public testing::Test {
 protected:
  void SetUp() override { clearStage(); }

  const Alert alert_{"Failed", "Check it", "OK"};
};

TEST_F(AlertPanelTest, ShowsNothingElse) {
  ViewController* controller = loadedController();
  Texts shown;
  [DuringAlert after:0.1
                  do:[&shown] {
                    shown = alertTexts();
                    pressReturn();
                  }];
  WindowBridge(controller).showAlert(alert_);
  EXPECT_EQ(shown, (Texts{alert_.message, alert_.informative, alert_.button}));
}

TEST_F(AlertPanelTest, AboutShowsTheProgramsNameAndVersion) {
  LauncherWindowOnScreen shown;
  Texts texts;
  [DuringAlert after:0.1
                  do:[&texts] {
                    texts = alertTexts();
                    pressReturn();
                  }];
  [NSApp orderFrontStandardAboutPanel:nil];
  ASSERT_EQ(texts.size(), 3U);
  EXPECT_EQ(texts[0], "Vorx Launcher");
  EXPECT_EQ(texts[2], "OK");
  EXPECT_EQ([NSApp modalWindow], nil);
}

TEST_F(AlertPanelTest, EscapeDismissesItToo) {
  ViewController* controller = loadedController();
  [DuringAlert after:0.1 do:[] { pressEscape(); }];
  WindowBridge(controller).showAlert(alert_);
  EXPECT_EQ([NSApp modalWindow], nil);
}

TEST_F(AlertPanelTest, StandsInTheMiddleOfItsWindow) {
  LauncherWindowOnScreen window;
  NSRect frame = NSZeroRect;
  [DuringAlert after:0.1
                  do:[&frame] {
                    frame = [[NSApp modalWindow] frame];
                    pressReturn();
                  }];
  WindowBridge(window.controller()).showAlert(alert_);
  EXPECT_NEAR(NSMidX(frame), NSMidX([window.window() frame]), 2);
}

TEST_F(AlertPanelTest, TheWindowIsDrawnBeforeItComesUp) {
  LauncherWindowOnScreen window;
  [[window.controller() infoLabel] setStringValue:@"changed"];
  BOOL drawn = NO;
  [DuringAlert after:0.1
                  do:[&] {
                    drawn = ![[window.controller() infoLabel] needsDisplay];
                    pressReturn();
                  }];
  WindowBridge(window.controller()).showAlert(alert_);
  EXPECT_TRUE(drawn);
}

}  // namespace
}  // namespace launcher
