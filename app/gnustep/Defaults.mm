// The toolkit's own settings, as a desktop of today expects them. Registered, so that a person's
// own choices come first.

#import "app/gnustep/AppKitLikeness.h"

#import <AppKit/AppKit.h>

namespace launcher {

void registerDefaults() {
  [[NSUserDefaults standardUserDefaults] registerDefaults:@{
    @"NSMenuInterfaceStyle" : @"NSWindows95InterfaceStyle",  // the menu lies in the window
    @"GSSuppressAppIcon" : @(YES),
    @"GSAppOwnsMiniwindow" : @(NO),  // else a minimised window could not be restored
    @"GSFirstCommandKey" : @"Control_L",
    @"GSSecondCommandKey" : @"Control_R",
    @"GSFirstControlKey" : @"Super_L",
    @"GSSecondControlKey" : @"Super_R",
    @"NSFont" : @"DejaVuSans",
    @"NSBoldFont" : @"DejaVuSans-Bold",
    @"NSUserFixedPitchFont" : @"DejaVuSansMono",
  }];
}

}  // namespace launcher
