// Windows on a dense screen. The toolkit enlarges what is in a window, and with it the width of the
// frame around it, which is the window manager's and stays as it is; but it makes the room for the
// menu as if nothing were enlarged.

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSWindowDecorationView.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

@interface NSWindow (ScalingExchange)
@end

@implementation NSWindow (ScalingExchange)

- (void)launcher_setContentView:(NSView*)view {
  [self launcher_setContentView:view];
  const CGFloat tooMuch = 1 - 1 / [self userSpaceScaleFactor];
  const NSPoint inner =
      [NSWindow contentRectForFrameRect:NSZeroRect styleMask:[self styleMask]].origin;
  [[view superview] setBoundsOrigin:NSMakePoint(inner.x * tooMuch, inner.y * tooMuch)];
}

@end

@interface GSWindowDecorationView (ScalingExchange)
@end

@implementation GSWindowDecorationView (ScalingExchange)

- (void)launcher_changeWindowHeight:(CGFloat)difference {
  [self launcher_changeWindowHeight:difference * [[self window] userSpaceScaleFactor]];
}

@end

namespace launcher {

void installScaling() {
  exchangeMethods([NSWindow class], @selector(setContentView:),
                  @selector(launcher_setContentView:));
  exchangeMethods([GSWindowDecorationView class], @selector(changeWindowHeight:),
                  @selector(launcher_changeWindowHeight:));
}

}  // namespace launcher
