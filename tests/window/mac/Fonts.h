#pragma once

#import <AppKit/AppKit.h>

namespace launcher {

/// The font in which the window's texts stand in a language, "pt-BR" for example, in the size that
/// the layout resource gives them.
NSFont* windowFont(NSString* language);

}  // namespace launcher
