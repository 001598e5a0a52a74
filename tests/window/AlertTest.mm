// The alert of a host that cannot be resolved.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#import "base/Conversions.h"
#import "controller/OperationQueues.h"
#import "controller/WindowBridge.h"
#import "tests/window/Stage.h"
#import "tests/window/Windows.h"

/// Does something while an alert is up.
@interface DuringAlert : NSObject {
  std::function<void()> _action;
  NSTimeInterval _delay;
}
+ (void)after:(NSTimeInterval)seconds do:(std::function<void()>)action;
@end

@implementation DuringAlert

/// From another thread, which wakes the alert's loop up as an event does.
+ (void)after:(NSTimeInterval)seconds do:(std::function<void()>)action {
  DuringAlert* during = [[[DuringAlert alloc] init] autorelease];
  during->_action = std::move(action);
  during->_delay = seconds;
  [NSThread detachNewThreadSelector:@selector(wait) toTarget:during withObject:nil];
}

- (void)wait {
  @autoreleasepool {
    [NSThread sleepForTimeInterval:_delay];
    [self performSelectorOnMainThread:@selector(act)
                           withObject:nil
                        waitUntilDone:NO
                                modes:@[ NSModalPanelRunLoopMode ]];
  }
}

- (void)act {
  _action();
}

@end

namespace launcher {
namespace {

using Texts = std::vector<std::string>;

Texts shownTexts() {
  Texts texts;
  for (NSView* view in [[[NSApp modalWindow] contentView] subviews]) {
    if ([view isKindOfClass:[NSTextField class]]) {
      texts.push_back(textOf(static_cast<NSTextField*>(view)));
    } else if ([view isKindOfClass:[NSButton class]]) {
      texts.push_back(fromToolkit([static_cast<NSButton*>(view) title]));
    }
  }
  return texts;
}

/// Presses a key as a person does.
void press(NSString* key) {
  [NSApp postEvent:[NSEvent keyEventWithType:NSKeyDown
                                          location:NSZeroPoint
                                     modifierFlags:0
                                         timestamp:0
                                      windowNumber:[[NSApp modalWindow] windowNumber]
                                           context:nil
                                        characters:key
                       charactersIgnoringModifiers:key
                                         isARepeat:NO
                                           keyCode:0]
           atStart:NO];
}

void dismiss() { press(@"\r"); }

class AlertTest : public testing::Test {
 protected:
  void SetUp() override { clearStage(); }

  const Alert alert_{"Failed \u2014 'h'", "Check it", "OK"};
};

TEST_F(AlertTest, ShowsItsTextsAndItsButtonUntilItIsDismissed) {
  ViewController* controller = loadedController();
  Texts shown;
  [DuringAlert after:0.1
                  do:[&shown] {
                    shown = shownTexts();
                    dismiss();
                  }];
  WindowBridge(controller).show(alert_);
  EXPECT_EQ(shown, (Texts{alert_.message, alert_.informative, alert_.button}));
  EXPECT_EQ([NSApp modalWindow], nil);
}

TEST_F(AlertTest, AboutShowsTheProgramsNameAndVersion) {
  LauncherWindowOnScreen shown;
  Texts texts;
  [DuringAlert after:0.1
                  do:[&texts] {
                    texts = shownTexts();
                    dismiss();
                  }];
  [NSApp orderFrontStandardAboutPanel:nil];
  ASSERT_EQ(texts.size(), 3U);
  EXPECT_EQ(texts[0], "Vorx Launcher");
  EXPECT_EQ(texts[2], "OK");
  EXPECT_EQ([NSApp modalWindow], nil);
}

TEST_F(AlertTest, EscapeDismissesItToo) {
  ViewController* controller = loadedController();
  [DuringAlert after:0.1 do:[] { press(@"\x1b"); }];
  WindowBridge(controller).show(alert_);
  EXPECT_EQ([NSApp modalWindow], nil);
}

TEST_F(AlertTest, StandsInTheMiddleOfItsWindow) {
  LauncherWindowOnScreen window;
  NSRect frame = NSZeroRect;
  [DuringAlert after:0.1
                  do:[&frame] {
                    frame = [[NSApp modalWindow] frame];
                    dismiss();
                  }];
  WindowBridge(window.controller()).show(alert_);
  EXPECT_NEAR(NSMidX(frame), NSMidX([window.window() frame]), 2);
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
                    dismiss();
                  }];
  WindowBridge(controller).show(alert_);
  EXPECT_FALSE(ranDuringAlert);
  EXPECT_TRUE(eventually([&ran] { return ran; }));
}

TEST_F(AlertTest, TheWindowIsDrawnBeforeTheAlertComesUp) {
  LauncherWindowOnScreen window;
  [[window.controller() infoLabel] setStringValue:@"changed"];
  BOOL drawn = NO;
  [DuringAlert after:0.1
                  do:[&] {
                    drawn = ![[window.controller() infoLabel] needsDisplay];
                    dismiss();
                  }];
  WindowBridge(window.controller()).show(alert_);
  EXPECT_TRUE(drawn);
}

TEST_F(AlertTest, ComesUpForAHostThatIsNotResolved) {
  LauncherWindowOnScreen window;
  type(window.window(), @"https://nohost.invalid/");
  Texts shown;
  [DuringAlert after:0.1
                  do:[&shown] {
                    shown = shownTexts();
                    dismiss();
                  }];
  [window.controller() launchButtonClick:nil];
  finishWork(window.controller());
  EXPECT_EQ(shown, (Texts{"Failed to look up IP address for 'nohost.invalid'",
                          "Please check you have entered the correct address", "OK"}));
  EXPECT_EQ(textOf([window.controller() infoLabel]),
            "Enter valid Vorx location to enable launch button");
  EXPECT_TRUE([[window.controller() vorxLocation] isEnabled]);
  EXPECT_FALSE([[window.controller() launchButton] isEnabled]);
  EXPECT_TRUE(stage().starter.starts.empty());
}

}  // namespace
}  // namespace launcher
