#import "tests/gnustep/StandIn.h"

#import <AppKit/AppKit.h>
#include <GNUstepGUI/GSVersion.h>

#include <cstdlib>

#include "tests/window/mac/Toolkit.h"

namespace launcher {

std::optional<std::string> prepareToolkit() {
  if (std::getenv("DISPLAY") == nullptr) return "no screen to show windows on";
  // Later versions have some of the replaced methods themselves, and their alerts wait differently.
  if (GNUSTEP_GUI_MINOR_VERSION != 29) {
    return "made for GNUstep's AppKit 0.29, this is 0." + std::to_string(GNUSTEP_GUI_MINOR_VERSION);
  }
  @autoreleasepool {
    installEventQueue();
    installLayers();
    installLayoutReading();
    installOperationQueues();
    installUndo();
    installViewLifecycle();
  }
  return std::nullopt;
}

}  // namespace launcher
