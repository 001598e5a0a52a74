#import "tests/window/mac/Toolkit.h"

#import <CoreGraphics/CoreGraphics.h>

namespace launcher {

/// AppKit needs no preparation. A remote login has no screen.
std::optional<std::string> prepareToolkit() {
  const CFDictionaryRef session = CGSessionCopyCurrentDictionary();
  if (session == nullptr) return "no screen to show windows on";
  CFRelease(session);
  return std::nullopt;
}

}  // namespace launcher
