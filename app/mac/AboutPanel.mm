#import "app/mac/AboutPanel.h"

@implementation AboutPanel

/// AppKit hands the panel to nobody, but no other window of the application is an ordinary one.
- (IBAction)show:(id)sender {
  [NSApp orderFrontStandardAboutPanel:sender];
  for (NSWindow* window in [NSApp windows]) {
    if (![window isVisible] || [window level] != NSNormalWindowLevel) continue;
    [window setLevel:NSFloatingWindowLevel];
    [window orderFront:sender];
  }
}

@end
