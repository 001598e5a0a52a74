#pragma once

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSTheme.h>

/// Draws what the toolkit's controls look like: flat, with thin lines and round corners.
@interface LauncherTheme : GSTheme
@end

namespace launcher {

/// How far an element's corners are rounded, in points.
inline constexpr CGFloat cornerRadius = 5.0;

}  // namespace launcher
