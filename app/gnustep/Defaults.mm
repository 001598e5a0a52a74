// The toolkit's own settings, as a desktop of today expects them. Registered, so that a person's
// own choices come first.

#import "app/gnustep/AppKitLikeness.h"

#import <AppKit/AppKit.h>

#include "app/desktop/Fonts.h"
#include "app/desktop/Languages.h"

namespace launcher {
namespace {

/// The toolkit draws no letter that its one font lacks, so the font follows the language.
NSString* fontName(FontWeight weight) {
  const auto languages = preferredLanguages(localeVariables());
  const auto font = desktopFont(languages.empty() ? "" : languages.front(), weight);
  return [NSString stringWithUTF8String:font.c_str()];
}

}  // namespace

void registerDefaults() {
  [[NSUserDefaults standardUserDefaults] registerDefaults:@{
    @"NSMenuInterfaceStyle" : @"NSWindows95InterfaceStyle",  // the menu lies in the window
    @"GSSuppressAppIcon" : @(YES),
    @"GSAppOwnsMiniwindow" : @(NO),  // else a minimised window could not be restored
    @"GSFirstCommandKey" : @"Control_L",
    @"GSSecondCommandKey" : @"Control_R",
    @"GSFirstControlKey" : @"Super_L",
    @"GSSecondControlKey" : @"Super_R",
    @"NSFont" : fontName(FontWeight::regular),
    @"NSBoldFont" : fontName(FontWeight::bold),
    @"NSUserFixedPitchFont" : @"DejaVuSansMono",
  }];
}

}  // namespace launcher
