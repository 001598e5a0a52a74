#import "app/gnustep/Theme.h"

#import "app/gnustep/AppKitLikeness.h"

@implementation LauncherTheme

- (void)drawFocusFrame:(NSRect)frame view:(NSView*)view {
  NSBezierPath* ring = [NSBezierPath bezierPathWithRoundedRect:NSInsetRect(frame, 1, 1)
                                                       xRadius:launcher::cornerRadius
                                                       yRadius:launcher::cornerRadius];
  [[NSColor keyboardFocusIndicatorColor] set];
  [ring setLineWidth:2];
  [ring stroke];
}

@end

namespace launcher {

void installTheme() {
  GSTheme* theme = [[LauncherTheme alloc] initWithBundle:[NSBundle mainBundle]];
  [GSTheme setTheme:theme];
  [theme release];
  // Any change of a setting would bring the person's theme for other programs back.
  [[NSNotificationCenter defaultCenter] removeObserver:[GSTheme class]
                                                  name:NSUserDefaultsDidChangeNotification
                                                object:nil];
}

}  // namespace launcher
