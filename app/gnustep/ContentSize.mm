// The limits of a window's content leave room for a menu that lies in the window.

#import <AppKit/AppKit.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

namespace {

/// What the window shows beside its content and its frame: the height of its menu.
CGFloat menuHeight(NSWindow* window) {
  const NSRect inside = [NSWindow contentRectForFrameRect:[window frame]
                                                styleMask:[window styleMask]];
  return inside.size.height - [[window contentView] frame].size.height;
}

NSSize withMenu(NSSize content, NSWindow* window) {
  return NSMakeSize(content.width, content.height + menuHeight(window));
}

}  // namespace

@interface NSWindow (ContentSizeExchange)
@end

@implementation NSWindow (ContentSizeExchange)

- (void)launcher_setContentMinSize:(NSSize)size {
  [self launcher_setContentMinSize:withMenu(size, self)];
}

- (void)launcher_setContentMaxSize:(NSSize)size {
  [self launcher_setContentMaxSize:withMenu(size, self)];
}

@end

namespace launcher {

void installContentSize() {
  exchangeMethods([NSWindow class], @selector(setContentMinSize:),
                  @selector(launcher_setContentMinSize:));
  exchangeMethods([NSWindow class], @selector(setContentMaxSize:),
                  @selector(launcher_setContentMaxSize:));
}

}  // namespace launcher
