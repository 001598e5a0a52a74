// The toolkit's system colours, light and flat. All of them are ours, since a text of somebody
// else's colour could not be read on a ground of ours; the fields are white in any case.

#import <AppKit/AppKit.h>

#import "app/gnustep/AppKitLikeness.h"

namespace launcher {
namespace {

/// Lets settings come before those of the person and of the command line.
void putFirst(NSDictionary* settings) {
  NSString* const domain = @"LauncherColours";
  NSUserDefaults* defaults = [NSUserDefaults standardUserDefaults];
  [defaults setVolatileDomain:settings forName:domain];
  [defaults setSearchList:[@[ domain ] arrayByAddingObjectsFromArray:[defaults searchList]]];
}

}  // namespace

void registerColours() {
  NSString* const surface = @"0.965 0.965 0.965";
  NSString* const paper = @"1 1 1";
  NSString* const ink = @"0.11 0.11 0.12";
  NSString* const faintInk = @"0.40 0.40 0.42";
  NSString* const accent = @"0.13 0.42 0.83";
  NSString* const paleAccent = @"0.72 0.84 0.98";
  NSString* const line = @"0.80 0.80 0.81";

  putFirst(@{
    @"windowBackgroundColor" : surface,
    @"controlColor" : surface,
    @"controlBackgroundColor" : surface,
    @"textBackgroundColor" : paper,
    @"controlTextColor" : ink,
    @"textColor" : ink,
    @"windowFrameTextColor" : ink,
    @"disabledControlTextColor" : faintInk,
    @"selectedTextBackgroundColor" : paleAccent,
    @"selectedTextColor" : ink,
    @"selectedControlColor" : paleAccent,
    @"selectedControlTextColor" : ink,
    @"selectedMenuItemColor" : accent,
    @"selectedMenuItemTextColor" : paper,
    @"alternateSelectedControlColor" : accent,
    @"keyboardFocusIndicatorColor" : accent,
    @"controlShadowColor" : line,
    @"controlDarkShadowColor" : line,
    @"controlHighlightColor" : surface,
    @"controlLightHighlightColor" : paper,
    @"toolTipColor" : paper,
    @"toolTipTextColor" : ink,
  });
}

}  // namespace launcher
