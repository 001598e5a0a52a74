// Buttons: the one that Return presses is filled with the accent colour.

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"
#import "app/gnustep/Theme.h"

namespace launcher {

namespace {

/// Whether Return presses the button.
bool isDefaultButton(NSCell* cell) { return [[cell keyEquivalent] isEqualToString:@"\r"]; }

/// A push button's frame in a layout file has margins that are not drawn.
NSRect shownPart(NSRect frame, int style) {
  const bool push = style == NSRoundedBezelStyle;
  return NSInsetRect(frame, push ? 6.5 : 0.5, push ? 2.5 : 0.5);
}

NSColor* fillColour(NSCell* cell, GSThemeControlState state) {
  if (state == GSThemeDisabledState) return [NSColor colorWithCalibratedWhite:0.92 alpha:1];
  NSColor* colour =
      isDefaultButton(cell) ? [NSColor alternateSelectedControlColor] : [NSColor whiteColor];
  const bool pressed = state == GSThemeHighlightedState || state == GSThemeSelectedState;
  return pressed ? [colour shadowWithLevel:0.2] : colour;
}

NSColor* lineColour(NSCell* cell, GSThemeControlState state) {
  if (state != GSThemeDisabledState && isDefaultButton(cell)) {
    return [[NSColor alternateSelectedControlColor] shadowWithLevel:0.15];
  }
  return [NSColor colorWithCalibratedWhite:0.72 alpha:1];
}

}  // namespace
}  // namespace launcher

@implementation LauncherTheme (Buttons)

- (void)drawButton:(NSRect)frame
                in:(NSCell*)cell
              view:(NSView*)view
             style:(int)style
             state:(GSThemeControlState)state {
  NSBezierPath* shape = [NSBezierPath bezierPathWithRoundedRect:launcher::shownPart(frame, style)
                                                        xRadius:launcher::cornerRadius
                                                        yRadius:launcher::cornerRadius];
  [launcher::fillColour(cell, state) set];
  [shape fill];
  [launcher::lineColour(cell, state) set];
  [shape stroke];
}

@end

@interface NSButtonCell (ThemeExchange)
@end

@implementation NSButtonCell (ThemeExchange)

- (NSColor*)launcher_textColor {
  if (![self isEnabled]) return [NSColor disabledControlTextColor];
  if (launcher::isDefaultButton(self)) return [NSColor whiteColor];
  return [self launcher_textColor];
}

@end

namespace launcher {

void installButtonTitles() {
  exchangeMethods([NSButtonCell class], @selector(textColor), @selector(launcher_textColor));
}

}  // namespace launcher
