#import "tests/window/mac/Toolkit.h"

#import <CoreGraphics/CoreGraphics.h>

namespace launcher {

/// AppKit is ready as it is. Someone logged in from elsewhere has no screen.
bool prepareToolkit() {
  const CFDictionaryRef session = CGSessionCopyCurrentDictionary();
  if (session == nullptr) return false;
  CFRelease(session);
  return true;
}

}  // namespace launcher
