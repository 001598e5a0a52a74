// The menu bar in the window and the menus that drop from it.

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"
#import "app/gnustep/Theme.h"

#include <cmath>

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

/// In the bar the toolkit puts all of the padding behind the title.
- (void)drawTitleForMenuItemCell:(NSMenuItemCell*)cell
                       withFrame:(NSRect)frame
                          inView:(NSView*)view
                           state:(GSThemeControlState)state
                    isHorizontal:(BOOL)horizontal {
  const CGFloat before = horizontal ? [[cell menuView] horizontalEdgePadding] : 0;
  [super drawTitleForMenuItemCell:cell
                        withFrame:NSOffsetRect(frame, before, 0)
                           inView:view
                            state:state
                     isHorizontal:horizontal];
}

- (void)drawSeparatorItemForMenuItemCell:(NSMenuItemCell*)cell
                               withFrame:(NSRect)frame
                                  inView:(NSView*)view
                            isHorizontal:(BOOL)horizontal {
  [[NSColor controlShadowColor] set];
  NSRectFill(NSMakeRect(NSMinX(frame), std::floor(NSMidY(frame)), frame.size.width, 1));
}

- (CGFloat)menuSubmenuVerticalOverlap {
  return 0;
}

/// A line below the bar, and all around a menu.
- (NSColor*)menuBorderColorForEdge:(NSRectEdge)edge isHorizontal:(BOOL)horizontal {
  const bool drawn = !horizontal || edge == NSMinYEdge;
  return drawn ? [NSColor controlShadowColor] : [self menuBackgroundColor];
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

/// A capital letter stands for its key with Shift.
- (NSString*)launcher_keyEquivalentString {
  NSString* key = [[self menuItem] keyEquivalent];
  if ([key length] == 0) return @"";
  const BOOL shifted = ![key isEqualToString:[key lowercaseString]];
  return [(shifted ? @"Ctrl+Shift+" : @"Ctrl+") stringByAppendingString:[key uppercaseString]];
}

@end

@interface NSMenuView (ThemeExchange)
@end

@implementation NSMenuView (ThemeExchange)

- (instancetype)launcher_initWithFrame:(NSRect)frame {
  self = [self launcher_initWithFrame:frame];
  [self setHorizontalEdgePadding:10];
  return self;
}

@end

namespace launcher {

void installMenus() {
  exchangeMethods([NSMenuView class], @selector(initWithFrame:),
                  @selector(launcher_initWithFrame:));
  exchangeMethods([NSMenuItemCell class], @selector(_keyEquivalentString),
                  @selector(launcher_keyEquivalentString));
}

}  // namespace launcher
