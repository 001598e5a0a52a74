// The toolkit's own settings, as a desktop of today expects them. Registered, so that a person's
// own choices come first.

#import "app/gnustep/AppKitLikeness.h"

#import <AppKit/AppKit.h>

#include "app/desktop/Fonts.h"
#include "app/desktop/Languages.h"
#include "app/desktop/Scale.h"
#include "app/gnustep/DesktopSettings.h"

namespace launcher {
namespace {

/// The toolkit draws no letter that its one font lacks, so the font follows the language.
NSString* fontName(const XSettings& settings, FontWeight weight) {
  const auto languages = preferredLanguages(localeVariables());
  const auto preferred = settings.texts.find("Gtk/FontName");
  const auto family = preferred == settings.texts.end() ? "" : fontFamily(preferred->second);
  const auto font = desktopFont(languages.empty() ? "" : languages.front(), weight, family);
  return [NSString stringWithUTF8String:font.c_str()];
}

}  // namespace

void registerDefaults() {
  const auto [settings, resources] = desktopSettings();
  [[NSUserDefaults standardUserDefaults] registerDefaults:@{
    @"NSMenuInterfaceStyle" : @"NSWindows95InterfaceStyle",  // the menu lies in the window
    @"GSSuppressAppIcon" : @(YES),
    @"GSAppOwnsMiniwindow" : @(NO),  // else a minimised window could not be restored
    @"GSFirstCommandKey" : @"Control_L",
    @"GSSecondCommandKey" : @"Control_R",
    @"GSFirstControlKey" : @"Super_L",
    @"GSSecondControlKey" : @"Super_R",
    @"NSFont" : fontName(settings, FontWeight::regular),
    @"NSBoldFont" : fontName(settings, FontWeight::bold),
    @"GSScaleFactor" : @(desktopScale(settings, resources)),
    @"NSUserFixedPitchFont" : @"DejaVuSansMono",
  }];
}

}  // namespace launcher
