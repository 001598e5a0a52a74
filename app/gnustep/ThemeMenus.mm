// The menu bar in the window and the menus that drop from it.

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"
#import "app/gnustep/Theme.h"

@implementation LauncherTheme (Menus)

- (CGFloat)menuItemHeight {
  return 24;
}

- (CGFloat)menuSeparatorHeight {
  return 9;
}

- (NSColor*)menuBackgroundColor {
  return [NSColor whiteColor];
}

- (NSColor*)menuItemBackgroundColor {
  return [NSColor whiteColor];
}

- (NSColor*)menuSeparatorColor {
  return [NSColor controlShadowColor];
}

- (CGFloat)menuSubmenuVerticalOverlap {
  return 0;
}

/// A line below the bar, and all around a menu.
- (NSColor*)menuBorderColorForEdge:(NSRectEdge)edge isHorizontal:(BOOL)horizontal {
  const bool drawn = !horizontal || edge == NSMinYEdge;
  return drawn ? [NSColor controlShadowColor] : nil;
}

- (void)drawBorderAndBackgroundForMenuItemCell:(NSMenuItemCell*)cell
                                     withFrame:(NSRect)frame
                                        inView:(NSView*)view
                                         state:(GSThemeControlState)state
                                  isHorizontal:(BOOL)horizontal {
  const bool selected = state == GSThemeSelectedState || state == GSThemeHighlightedState;
  if (!selected || ![[cell menuItem] isEnabled]) return;
  [[NSColor selectedMenuItemColor] set];
  NSRectFill(NSInsetRect(frame, horizontal ? 0 : 1, 1));
}

@end

@interface NSMenuItemCell (KeyEquivalents)
- (NSString*)_keyEquivalentString;
@end

@interface NSMenuItemCell (ThemeExchange)
@end

@implementation NSMenuItemCell (ThemeExchange)

- (NSString*)launcher_keyEquivalentString {
  NSString* key = [[self menuItem] keyEquivalent];
  return [key length] > 0 ? [@"Ctrl+" stringByAppendingString:[key uppercaseString]] : @"";
}

@end

namespace launcher {

void installMenuKeys() {
  exchangeMethods([NSMenuItemCell class], @selector(_keyEquivalentString),
                  @selector(launcher_keyEquivalentString));
}

}  // namespace launcher
