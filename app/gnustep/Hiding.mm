// Hiding the application. Without an icon of the toolkit's on the desktop nothing would bring a
// hidden window back, so that it is minimised.

#import <AppKit/AppKit.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

@interface NSApplication (HidingExchange)
@end

@implementation NSApplication (HidingExchange)

- (void)launcher_hide:(id)sender {
  [[self mainWindow] miniaturize:sender];
}

@end

namespace launcher {

void installHiding() {
  exchangeMethods([NSApplication class], @selector(hide:), @selector(launcher_hide:));
}

}  // namespace launcher
