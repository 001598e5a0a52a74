#import "tests/window/mac/Fonts.h"

#include "app/desktop/Fonts.h"

namespace launcher {

NSFont* windowFont(NSString* language) {
  const auto name = desktopFont([language UTF8String], FontWeight::regular);
  return [NSFont fontWithName:[NSString stringWithUTF8String:name.c_str()] size:13];
}

}  // namespace launcher
