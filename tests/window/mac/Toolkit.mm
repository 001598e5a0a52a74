#import "tests/window/mac/Toolkit.h"

#import <CoreGraphics/CoreGraphics.h>

namespace launcher {

/// AppKit is ready as it is. Someone logged in from elsewhere has no screen.
std::optional<std::string> prepareToolkit() {
  const CFDictionaryRef session = CGSessionCopyCurrentDictionary();
  if (session == nullptr) return "no screen to show windows on";
  CFRelease(session);
  return std::nullopt;
}

}  // namespace launcher
