// The name under which window managers and panels group a program's windows: the program's own. The
// toolkit says its own name.

#import <AppKit/AppKit.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"
#import "app/gnustep/XWindows.h"

@interface GSDisplayServer (WindowClassExchange)
@end

@implementation GSDisplayServer (WindowClassExchange)

- (void)launcher_order:(int)place relativeTo:(int)other window:(int)window {
  if (place != NSWindowOut) {
    launcher::setClass([self serverDevice],
                       reinterpret_cast<launcher::XWindow>([self windowDevice:window]),
                       [[[NSProcessInfo processInfo] processName] UTF8String]);
  }
  [self launcher_order:place relativeTo:other window:window];
}

@end

namespace launcher {

void installWindowClass() {
  [NSApplication sharedApplication];  // connects to the display
  exchangeMethods([GSCurrentServer() class], @selector(orderwindow:::),
                  @selector(launcher_order:relativeTo:window:));
}

}  // namespace launcher
