// The layout resources: what stands in the window before anything has been evaluated.

#include <gtest/gtest.h>
#import <objc/runtime.h>

#import "controller/mac/TextCells.h"
#import "tests/window/mac/Stage.h"
#import "tests/window/mac/Windows.h"

namespace launcher {
namespace {

class LayoutTest : public testing::Test {
 protected:
  void SetUp() override { clearStage(); }

  static std::string placeholderOf(NSTextField* field) {
    return [[static_cast<NSTextFieldCell*>([field cell]) placeholderString] UTF8String];
  }

  /// A text of the layout in the language of whoever runs the tests.
  static std::string localised(NSString* text) {
    return [[[NSBundle mainBundle] localizedStringForKey:text value:nil table:nil] UTF8String];
  }

  ViewController* controller_ = loadedController();
};

TEST_F(LayoutTest, ConnectsAllOutlets) {
  EXPECT_TRUE([[controller_ launchButton] isKindOfClass:[NSButton class]]);
  EXPECT_TRUE([[controller_ infoLabel] isKindOfClass:[NSTextField class]]);
  EXPECT_TRUE([[controller_ vorxLocation] isKindOfClass:[NSTextField class]]);
  EXPECT_TRUE([[controller_ ipAddress] isKindOfClass:[NSTextField class]]);
}

TEST_F(LayoutTest, MakesTheControllerTheFieldsDelegateAndTheButtonsTarget) {
  EXPECT_EQ([[controller_ vorxLocation] delegate], controller_);
  EXPECT_EQ([[controller_ ipAddress] delegate], controller_);
  EXPECT_EQ([[controller_ launchButton] target], controller_);
  const SEL action = [[controller_ launchButton] action];
  EXPECT_TRUE(sel_isEqual(action, @selector(launchButtonClick:)));
}

TEST_F(LayoutTest, OffersNoLaunchBeforeTheFirstEvaluation) {
  EXPECT_FALSE([[controller_ launchButton] isEnabled]);
  EXPECT_EQ([[[controller_ launchButton] title] UTF8String], localised(@"Launch"));
  EXPECT_EQ(textOf([controller_ infoLabel]),
            localised(@"Enter valid Vorx location to enable launch button"));
  EXPECT_EQ(textOf([controller_ vorxLocation]), "");
  EXPECT_EQ(textOf([controller_ ipAddress]), "");
}

TEST_F(LayoutTest, ShowsAnExampleInEachField) {
  EXPECT_EQ(placeholderOf([controller_ vorxLocation]), "https://vorx.example.com");
  EXPECT_EQ(placeholderOf([controller_ ipAddress]), "10.0.0.5");
}

TEST_F(LayoutTest, LetsOnlyTheTwoFieldsBeEdited) {
  for (NSView* view in [[controller_ view] subviews]) {
    if (![view isKindOfClass:[NSTextField class]]) continue;
    const BOOL isField = view == [controller_ vorxLocation] || view == [controller_ ipAddress];
    EXPECT_EQ([static_cast<NSTextField*>(view) isEditable], isField)
        << [[view description] UTF8String];
  }
}

TEST_F(LayoutTest, GivesFieldsAndStatusTheirCells) {
  EXPECT_TRUE([[[controller_ vorxLocation] cell] isKindOfClass:[FieldCell class]]);
  EXPECT_TRUE([[[controller_ ipAddress] cell] isKindOfClass:[FieldCell class]]);
  EXPECT_TRUE([[[controller_ infoLabel] cell] isKindOfClass:[StatusCell class]]);
}

TEST_F(LayoutTest, WritesBlackInTheFieldsWhateverTheSystemsColours) {
  for (NSTextField* field in @[ [controller_ vorxLocation], [controller_ ipAddress] ]) {
    NSColor* colour = [[field textColor] colorUsingColorSpace:[NSColorSpace genericGrayColorSpace]];
    EXPECT_EQ([colour whiteComponent], 0.0);
  }
}

TEST_F(LayoutTest, ReturnPressesTheButton) {
  EXPECT_STREQ([[[controller_ launchButton] keyEquivalent] UTF8String], "\r");
}

TEST_F(LayoutTest, GrowsInWidthOnly) {
  LauncherWindowOnScreen shown;
  const NSSize content = [[shown.window() contentView] frame].size;
  EXPECT_EQ(content.width, 500);
  EXPECT_EQ(content.height, 216);
  EXPECT_EQ([shown.window() contentMinSize].height, content.height);
  EXPECT_EQ([shown.window() contentMaxSize].height, content.height);
  EXPECT_LT([shown.window() contentMinSize].width, content.width);
  EXPECT_GT([shown.window() contentMaxSize].width, content.width);
}

TEST_F(LayoutTest, StartsInTheVorxField) {
  LauncherWindowOnScreen shown;
  EXPECT_NE([[shown.controller() vorxLocation] currentEditor], nil);
}

TEST_F(LayoutTest, TabGoesRound) {
  LauncherWindowOnScreen shown;
  tab(shown.window());
  EXPECT_NE([[shown.controller() ipAddress] currentEditor], nil);
  backtab(shown.window());
  EXPECT_NE([[shown.controller() vorxLocation] currentEditor], nil);
}

}  // namespace
}  // namespace launcher
