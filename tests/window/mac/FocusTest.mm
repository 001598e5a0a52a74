// Where the keys go: the focus is never lost.

#include <gtest/gtest.h>
#include <atomic>
#include <memory>

#import "controller/mac/WindowBridge.h"
#import "tests/window/mac/Alerts.h"
#import "tests/window/mac/Stage.h"
#import "tests/window/mac/Windows.h"

/// Notes whether it is being edited when it is disabled. Gives up the focus when its text is set,
/// as a field of the platform may.
@interface LettingGoField : NSTextField {
 @public
  BOOL _wasEditedWhenDisabled;
}
@end

@implementation LettingGoField

- (void)setEnabled:(BOOL)enabled {
  if (!enabled) _wasEditedWhenDisabled = [self currentEditor] != nil;
  [super setEnabled:enabled];
}

- (void)setStringValue:(NSString*)text {
  [[self window] makeFirstResponder:nil];
  [super setStringValue:text];
}

@end

namespace launcher {
namespace {

class FocusTest : public testing::Test {
 protected:
  void SetUp() override { clearStage(); }

  NSTextField* location() { return [shown_.controller() vorxLocation]; }
  NSTextField* ip() { return [shown_.controller() ipAddress]; }
  void setLocation(Availability availability) {
    WindowBridge(shown_.controller()).setVorxLocation(availability);
  }
  void select(NSUInteger start, NSUInteger length) {
    [[location() currentEditor] setSelectedRange:NSMakeRange(start, length)];
  }
  bool isSelected(NSUInteger start, NSUInteger length) {
    const NSRange selected = [[location() currentEditor] selectedRange];
    return selected.location == start && selected.length == length;
  }

  /// Replaces the location field with one that has the focus.
  LettingGoField* lettingGoField() {
    NSRect frame = [location() frame];
    LettingGoField* field = [[[LettingGoField alloc] initWithFrame:frame] autorelease];
    [[shown_.window() contentView] addSubview:field];
    [shown_.controller() setVorxLocation:field];
    [shown_.window() makeFirstResponder:field];
    return field;
  }

  LauncherWindowOnScreen shown_;
};

TEST_F(FocusTest, ADisabledFieldIsNotEditedAndKeepsItsText) {
  type(shown_.window(), @"https://h/");
  setLocation(Availability::disabled);
  EXPECT_EQ([location() currentEditor], nil);
  EXPECT_EQ(textOf(location()), "https://h/");
}

TEST_F(FocusTest, AFieldIsNotEditedAnyMoreWhenItIsDisabled) {
  LettingGoField* field = lettingGoField();
  ASSERT_NE([field currentEditor], nil);
  setLocation(Availability::disabled);
  EXPECT_FALSE(field->_wasEditedWhenDisabled);
}

TEST_F(FocusTest, AFieldHasItBackWithItsSelection) {
  type(shown_.window(), @"https://h/");
  select(3, 4);
  setLocation(Availability::disabled);
  setLocation(Availability::enabled);
  EXPECT_TRUE(isSelected(3, 4));
}

TEST_F(FocusTest, AnEnabledFieldThatIsEnabledKeepsItsSelection) {
  type(shown_.window(), @"https://h/");
  select(3, 4);
  setLocation(Availability::enabled);
  EXPECT_TRUE(isSelected(3, 4));
}

TEST_F(FocusTest, StaysWhereThePersonWentMeanwhile) {
  setLocation(Availability::disabled);
  [shown_.window() makeFirstResponder:ip()];
  setLocation(Availability::enabled);
  EXPECT_NE([ip() currentEditor], nil);
  EXPECT_EQ([location() currentEditor], nil);
}

TEST_F(FocusTest, StaysInTheFieldThatIsNotDisabled) {
  tab(shown_.window());
  type(shown_.window(), @"10.0.0.5");
  setLocation(Availability::disabled);
  EXPECT_NE([ip() currentEditor], nil);
  setLocation(Availability::enabled);
  EXPECT_NE([ip() currentEditor], nil);
}

TEST_F(FocusTest, ALaunchGivesItBack) {
  type(shown_.window(), @"https://h/");
  stage().resolver.answer = {ipv4("192.0.2.1")};
  [[shown_.controller() launchButton] performClick:nil];
  finishWork(shown_.controller());
  ASSERT_EQ(stage().starter.starts.size(), 1U);
  EXPECT_NE([location() currentEditor], nil);
}

TEST_F(FocusTest, ReturnGivesItBackWithTheSelection) {
  type(shown_.window(), @"https://h/");
  select(10, 0);
  stage().resolver.answer = {ipv4("192.0.2.1")};
  const auto started = std::make_shared<std::atomic<bool>>(false);
  stage().starter.onStart = [started] { *started = true; };
  pressReturnIn(shown_.window());
  EXPECT_TRUE(eventually([&started] { return started->load(); }));
  finishWork(shown_.controller());
  EXPECT_NE([location() currentEditor], nil);
  EXPECT_TRUE(isSelected(10, 0));
}

TEST_F(FocusTest, AFoundLocationDoesNotTakeItAway) {
  ASSERT_NE([location() currentEditor], nil);
  [shown_.controller() updateSourceLocationWithSource:@"https://h/"];
  settle();
  EXPECT_NE([location() currentEditor], nil);
  EXPECT_EQ(textOf(location()), "https://h/");
}

TEST_F(FocusTest, AFoundLocationGivesItBackIfTheFieldLosesIt) {
  LettingGoField* field = lettingGoField();
  [shown_.controller() updateSourceLocationWithSource:@"https://h/"];
  settle();
  EXPECT_NE([field currentEditor], nil);
  EXPECT_EQ(textOf(field), "https://h/");
}

/// Even if the address was edited before. The next key then edits the location.
TEST_F(FocusTest, AfterTheAlertItIsInTheLocationField) {
  type(shown_.window(), @"https://nohost.invalid/");
  select(8, 6);
  tab(shown_.window());
  type(shown_.window(), @"10");
  [DuringAlert after:0.1 do:[] { pressReturn(); }];
  [shown_.controller() launchButtonClick:nil];
  finishWork(shown_.controller());
  EXPECT_TRUE(isSelected(8, 6));
  EXPECT_EQ(textOf(ip()), "10");
  type(shown_.window(), @"vorx");
  EXPECT_EQ(textOf(location()), "https://vorx.invalid/");
}

}  // namespace
}  // namespace launcher
