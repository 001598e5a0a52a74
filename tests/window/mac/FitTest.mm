// Every language's texts have the room that they need, also in the narrowest window.

#include <gtest/gtest.h>

#import "base/mac/Conversions.h"
#import "tests/window/mac/Stage.h"
#import "tests/window/mac/Windows.h"

namespace launcher {
namespace {

const char* const statusTexts[] = {
    "Enter valid Vorx location to enable launch button",
    "Press launch button to re-start remote control",
    "Press launch button to start remote control",
    "Looking up IP Address for the Vorx",
};

/// The text in the language's own table; nil if the table lacks it.
NSString* inLanguage(NSString* language, const char* key) {
  NSString* folder = [[NSBundle mainBundle] pathForResource:language ofType:@"lproj"];
  NSString* text = [[NSBundle bundleWithPath:folder] localizedStringForKey:toNSString(key)
                                                                     value:@"missing"
                                                                     table:nil];
  return [text isEqualToString:@"missing"] ? nil : text;
}

void makeNarrowest(NSWindow* window) {
  NSRect frame = [window frame];
  frame.size.width += [window contentMinSize].width - [[window contentView] frame].size.width;
  [window setFrame:frame display:YES];
}

class FitTest : public testing::TestWithParam<const char*> {
 protected:
  FitTest() {
    clearStage();
    makeNarrowest(shown_.window());
  }

  /// The height that a text takes up where a field shows it.
  CGFloat height(NSTextField* field, NSString* text) {
    const NSSize room = [[field cell] titleRectForBounds:[field bounds]].size;
    NSAttributedString* shown = [[[NSAttributedString alloc]
        initWithString:text
            attributes:@{NSFontAttributeName : [NSFont systemFontOfSize:13]}] autorelease];
    return [shown boundingRectWithSize:NSMakeSize(room.width, CGFLOAT_MAX)
                               options:NSStringDrawingUsesLineFragmentOrigin]
        .size.height;
  }

  LauncherWindowOnScreen shown_;
  NSString* language_ = [NSString stringWithUTF8String:GetParam()];
};

TEST_P(FitTest, TheStatusLineHasRoomForEachText) {
  NSTextField* status = [shown_.controller() infoLabel];
  for (const char* key : statusTexts) {
    NSString* text = inLanguage(language_, key);
    ASSERT_NE(text, nil) << key;
    EXPECT_LE(height(status, text), [status bounds].size.height) << [text UTF8String];
  }
}

TEST_P(FitTest, TheButtonHasRoomForEachTitle) {
  NSButton* button = [shown_.controller() launchButton];
  for (const char* key : {"Launch", "Re-Launch"}) {
    NSString* title = inLanguage(language_, key);
    ASSERT_NE(title, nil) << key;
    const CGFloat width =
        [title sizeWithAttributes:@{NSFontAttributeName : [NSFont systemFontOfSize:13]}].width;
    EXPECT_LE(width, [button bounds].size.width - 24) << [title UTF8String];
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, FitTest, testing::Values(LANGUAGES));

}  // namespace
}  // namespace launcher
