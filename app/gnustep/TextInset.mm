// A cell's text keeps clear of the cell's edges, as AppKit's does. In the toolkit it touches them,
// so that a label would not stand in line with the field below it.

#import <AppKit/AppKit.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

namespace {

constexpr CGFloat besideText = 2;

}  // namespace

@interface NSTextFieldCell (TextInsetExchange)
@end

@implementation NSTextFieldCell (TextInsetExchange)

- (NSRect)launcher_titleRectForBounds:(NSRect)bounds {
  return NSInsetRect([self launcher_titleRectForBounds:bounds], besideText, 0);
}

@end

namespace launcher {

void installTextInset() {
  exchangeMethods([NSTextFieldCell class], @selector(titleRectForBounds:),
                  @selector(launcher_titleRectForBounds:));
}

}  // namespace launcher
