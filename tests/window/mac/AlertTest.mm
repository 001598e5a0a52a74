// The alert of a host that cannot be resolved.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#import "controller/mac/OperationQueues.h"
#import "controller/mac/WindowBridge.h"
#import "tests/window/mac/Alerts.h"
#import "tests/window/mac/Stage.h"
#import "tests/window/mac/Windows.h"

namespace launcher {
namespace {

class AlertTest : public testing::Test {
 protected:
  void SetUp() override { clearStage(); }

  // A title that no toolkit gives a button by itself.
  const Alert alert_{"Failed \u2014 'h'", "Check it", "Understood"};
};

TEST_F(AlertTest, ShowsItsTextsAndItsButtonUntilItIsDismissed) {
  ViewController* controller = loadedController();
  std::vector<std::string> shown;
  [DuringAlert after:0.1
                  do:[&shown] {
                    shown = alertTexts();
                    pressReturn();
                  }];
  WindowBridge(controller).showAlert(alert_);
  EXPECT_THAT(shown, testing::IsSupersetOf({alert_.message, alert_.informative, alert_.button}));
  EXPECT_EQ([NSApp modalWindow], nil);
}

TEST_F(AlertTest, HasOneButton) {
  std::vector<std::string> titles;
  [DuringAlert after:0.1
                  do:[&titles] {
                    titles = alertButtons();
                    pressReturn();
                  }];
  WindowBridge(loadedController()).showAlert(alert_);
  EXPECT_EQ(titles, std::vector{alert_.button});
}

TEST_F(AlertTest, StandsAboveTheFloatingWindow) {
  LauncherWindowOnScreen window;
  NSInteger level = 0;
  [DuringAlert after:0.1
                  do:[&level] {
                    level = [[NSApp modalWindow] level];
                    pressReturn();
                  }];
  WindowBridge(window.controller()).showAlert(alert_);
  EXPECT_GT(level, [window.window() level]);
}

TEST_F(AlertTest, AnItemPostedMeanwhileRunsAfterwards) {
  ViewController* controller = loadedController();
  const auto mainQueue = makeMainQueue();
  bool ran = false;
  bool ranDuringAlert = true;
  [DuringAlert after:0.1 do:[&] { mainQueue->add([&ran] { ran = true; }); }];
  [DuringAlert after:0.5
                  do:[&] {
                    ranDuringAlert = ran;
                    pressReturn();
                  }];
  mainQueue->add([&] { WindowBridge(controller).showAlert(alert_); });
  EXPECT_TRUE(eventually([&ran] { return ran; }));
  EXPECT_FALSE(ranDuringAlert);
}

TEST_F(AlertTest, ComesUpForAHostThatIsNotResolved) {
  LauncherWindowOnScreen window;
  type(window.window(), @"https://nohost.invalid/");
  std::vector<std::string> shown;
  [DuringAlert after:0.1
                  do:[&shown] {
                    shown = alertTexts();
                    pressReturn();
                  }];
  [window.controller() launchButtonClick:nil];
  finishWork(window.controller());
  EXPECT_THAT(shown,
              testing::IsSupersetOf({"Failed to look up IP address for 'nohost.invalid'",
                                     "Please check you have entered the correct address", "OK"}));
  EXPECT_EQ(textOf([window.controller() infoLabel]),
            "Enter valid Vorx location to enable launch button");
  EXPECT_TRUE([[window.controller() vorxLocation] isEnabled]);
  EXPECT_FALSE([[window.controller() launchButton] isEnabled]);
  EXPECT_TRUE(stage().starter.starts.empty());
}

}  // namespace
}  // namespace launcher
