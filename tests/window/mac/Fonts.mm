#import "tests/window/mac/Fonts.h"

namespace launcher {

/// One for all languages: what it has no character for, the system takes from others.
NSFont* windowFont(NSString*) { return [NSFont systemFontOfSize:13]; }

}  // namespace launcher
