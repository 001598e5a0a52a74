#import "app/mac/AboutPanel.h"

@implementation AboutPanel

/// AppKit does not hand out the panel. Find it by its level: no other window of the application has
/// the normal one.
- (IBAction)show:(id)sender {
  [NSApp orderFrontStandardAboutPanel:sender];
  for (NSWindow* window in [NSApp windows]) {
    if (![window isVisible] || [window level] != NSNormalWindowLevel) continue;
    [window setLevel:NSFloatingWindowLevel];
    [window orderFront:sender];
  }
}

@end
