// Floating windows above ordinary ones. Window managers do not heed the toolkit's levels, and the
// toolkit takes a floating window for a tool of another one and keeps it out of the window list.

#import <AppKit/AppKit.h>
#import <CoreGraphics/CoreGraphics.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"
#import "app/gnustep/XWindows.h"

CGWindowLevel CGWindowLevelForKey(CGWindowLevelKey key) {
  return key == kCGFloatingWindowLevelKey ? NSFloatingWindowLevel : NSNormalWindowLevel;
}

@interface GSDisplayServer (WindowLevelExchange)
@end

@implementation GSDisplayServer (WindowLevelExchange)

- (void)launcher_setLevel:(int)level ofWindow:(int)window {
  const bool floats = level == NSFloatingWindowLevel;
  [self launcher_setLevel:floats ? NSNormalWindowLevel : level ofWindow:window];
}

@end

@interface NSWindow (WindowLevelExchange)
@end

@implementation NSWindow (WindowLevelExchange)

- (void)launcher_leveledOrderWindow:(NSWindowOrderingMode)place relativeTo:(NSInteger)other {
  [self launcher_leveledOrderWindow:place relativeTo:other];
  const bool floats = [self level] == NSFloatingWindowLevel;
  if (floats && place != NSWindowOut) {
    launcher::keepAbove(launcher::xDisplay(self), launcher::xWindow(self));
  }
}

@end

namespace launcher {

void installWindowLevel() {
  [NSApplication sharedApplication];  // connects to the display
  exchangeMethods([GSCurrentServer() class], @selector(setwindowlevel::),
                  @selector(launcher_setLevel:ofWindow:));
  exchangeMethods([NSWindow class], @selector(orderWindow:relativeTo:),
                  @selector(launcher_leveledOrderWindow:relativeTo:));
}

}  // namespace launcher
