#include "tests/window/mac/Screen.h"

#include <CoreGraphics/CoreGraphics.h>

namespace launcher {

/// Who has logged in from elsewhere has none.
bool hasScreen() {
  const CFDictionaryRef session = CGSessionCopyCurrentDictionary();
  if (session == nullptr) return false;
  CFRelease(session);
  return true;
}

}  // namespace launcher
