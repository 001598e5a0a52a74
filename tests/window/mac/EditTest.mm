// Edits of the fields, and what the window shows of them.

#import <CoreGraphics/CoreGraphics.h>
#import <QuartzCore/QuartzCore.h>

#include <gtest/gtest.h>

#import "tests/window/mac/Stage.h"
#import "tests/window/mac/Windows.h"

namespace launcher {
namespace {

class EditTest : public testing::Test {
 protected:
  void SetUp() override { clearStage(); }

  static CGColorRef ipColour(ViewController* controller) {
    return [[[controller ipAddress] layer] backgroundColor];
  }
};

TEST_F(EditTest, TypingIntoEitherFieldEvaluates) {
  LauncherWindowOnScreen shown;
  type(shown.window(), @"https://h/");
  EXPECT_TRUE([[shown.controller() launchButton] isEnabled]);
  EXPECT_TRUE(CGColorEqualToColor(ipColour(shown.controller()), [[NSColor whiteColor] CGColor]));

  tab(shown.window());
  type(shown.window(), @"x");
  EXPECT_FALSE([[shown.controller() launchButton] isEnabled]);
  EXPECT_TRUE(CGColorEqualToColor(ipColour(shown.controller()), [[NSColor redColor] CGColor]));
}

TEST_F(EditTest, TheAddressFieldIsGreenRedOrWhite) {
  const std::vector<std::pair<NSString*, NSColor*>> cases = {
      {@"10.0.0.5", [NSColor greenColor]}, {@"10.0.0", [NSColor redColor]},
      {@" ", [NSColor redColor]},          {@"", [NSColor whiteColor]},
      {@"fe80::1", [NSColor greenColor]},
  };
  ViewController* controller = loadedController();
  for (const auto& [text, colour] : cases) {
    [[controller ipAddress] setStringValue:text];
    [controller updateState];
    EXPECT_TRUE(CGColorEqualToColor(ipColour(controller), [colour CGColor])) << [text UTF8String];
  }
}

TEST_F(EditTest, ShowsTheViewersStateInTheButton) {
  stage().processes.processes = {processRecord(7, "vexlink")};
  LauncherWindowOnScreen shown;
  type(shown.window(), @"https://h/");
  EXPECT_STREQ([[[shown.controller() launchButton] title] UTF8String], "Re-Launch");
  EXPECT_EQ(textOf([shown.controller() infoLabel]),
            "Press launch button to re-start remote control");
}

struct NotificationCase {
  const char* name;
  id object;
  bool evaluates;
};

TEST_F(EditTest, OnlyATextFieldsNotificationEvaluates) {
  const std::vector<NotificationCase> cases = {
      {"the location field", nil, true},
      {"another text field", [[[NSTextField alloc] init] autorelease], true},
      {"a button", [[[NSButton alloc] init] autorelease], false},
      {"a text", @"text", false},
      {"nothing", nil, false},
  };
  for (const auto& [name, object, evaluates] : cases) {
    ViewController* controller = loadedController();
    const bool own = std::string(name) == "the location field";
    id sender = own ? [controller vorxLocation] : object;
    [controller
        controlTextDidChange:[NSNotification notificationWithName:NSControlTextDidChangeNotification
                                                           object:sender]];
    EXPECT_EQ(ipColour(controller) != nullptr, evaluates) << name;
  }
}

TEST_F(EditTest, ALaunchGoesFromThePressToTheViewersArguments) {
  LauncherWindowOnScreen shown;
  type(shown.window(), @"https://vorx.example.com:444/path");
  tab(shown.window());
  type(shown.window(), @"10.0.0.5");
  [[shown.controller() launchButton] performClick:nil];
  finishWork(shown.controller());

  ASSERT_EQ(stage().starter.starts.size(), 1U);
  EXPECT_EQ(stage().starter.starts[0].arguments,
            (std::vector<std::string>{"-l", "vorx.example.com", "-i", "10.0.0.5", "-r",
                                      *stage().bundle.resources}));
  EXPECT_TRUE([[shown.controller() vorxLocation] isEnabled]);
  EXPECT_TRUE([[shown.controller() launchButton] isEnabled]);
}

TEST_F(EditTest, LocksTheFormDuringTheLookup) {
  LauncherWindowOnScreen shown;
  type(shown.window(), @"https://h/");
  tab(shown.window());
  type(shown.window(), @"10.0.0.5");
  [shown.controller() launchButtonClick:nil];
  EXPECT_FALSE([[shown.controller() vorxLocation] isEnabled]);
  EXPECT_FALSE([[shown.controller() launchButton] isEnabled]);
  EXPECT_TRUE([[shown.controller() ipAddress] isEnabled]);
  EXPECT_EQ(textOf([shown.controller() infoLabel]), "Looking up IP Address for the Vorx");
}

}  // namespace
}  // namespace launcher
