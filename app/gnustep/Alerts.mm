// Alerts that look like the rest and stay above their window, which goes on being drawn.

#import <AppKit/AppKit.h>

#import "app/gnustep/AlertPanel.h"
#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

@interface NSAlert (AlertExchange)
@end

@implementation NSAlert (AlertExchange)

- (NSInteger)launcher_runModal {
  if ([[self buttons] count] == 0) [self addButtonWithTitle:@"OK"];
  NSWindow* owner = [NSApp mainWindow];
  [owner displayIfNeeded];
  AlertPanel* panel = [[AlertPanel alloc] initWithAlert:self owner:owner];
  const NSInteger pressed = [panel runModal];
  [panel release];
  [owner makeKeyWindow];
  return NSAlertFirstButtonReturn + pressed;
}

@end

namespace launcher {

void installAlerts() {
  exchangeMethods([NSAlert class], @selector(runModal), @selector(launcher_runModal));
}

}  // namespace launcher
