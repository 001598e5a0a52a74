// Floating windows above ordinary ones, also for window managers that do not know the toolkit's
// levels.

#import "app/gnustep/AppKitLikeness.h"

#import <AppKit/AppKit.h>
#import <CoreGraphics/CoreGraphics.h>
#import <GNUstepGUI/GSDisplayServer.h>

#import "app/gnustep/KeepAbove.h"
#import "app/gnustep/Methods.h"

CGWindowLevel CGWindowLevelForKey(CGWindowLevelKey key) {
  return key == kCGFloatingWindowLevelKey ? NSFloatingWindowLevel : NSNormalWindowLevel;
}

@interface NSWindow (WindowLevelExchange)
@end

@implementation NSWindow (WindowLevelExchange)

- (void)launcher_leveledOrderWindow:(NSWindowOrderingMode)place relativeTo:(NSInteger)other {
  [self launcher_leveledOrderWindow:place relativeTo:other];
  if (place == NSWindowOut || [self level] != NSFloatingWindowLevel) return;
  GSDisplayServer* server = GSServerForWindow(self);
  void* window = [server windowDevice:static_cast<int>([self windowNumber])];
  launcher::keepAbove([server serverDevice], reinterpret_cast<unsigned long>(window));
}

@end

namespace launcher {

void installWindowLevel() {
  exchangeMethods([NSWindow class], @selector(orderWindow:relativeTo:),
                  @selector(launcher_leveledOrderWindow:relativeTo:));
}

}  // namespace launcher
