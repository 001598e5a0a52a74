#import <AppKit/AppKit.h>

#include "viewer/mac/Toolkit.h"

namespace viewer {

/// A program outside of a bundle has no place among the applications unless it asks for one.
bool prepareToolkit() {
  [[NSApplication sharedApplication] setActivationPolicy:NSApplicationActivationPolicyRegular];
  return true;
}

std::string iconIn(const std::string& resourceFolder) {
  return resourceFolder + "/VorxLauncher.icns";
}

}  // namespace viewer
