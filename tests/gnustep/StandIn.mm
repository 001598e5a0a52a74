#import "tests/gnustep/StandIn.h"

#import <AppKit/AppKit.h>

#include <cstdlib>

#include "tests/window/mac/Toolkit.h"

namespace launcher {

bool prepareToolkit() {
  if (std::getenv("DISPLAY") == nullptr) return false;
  @autoreleasepool {
    installEventQueue();
    installLayers();
    installLayoutReading();
    installOperationQueues();
    installUndo();
    installViewLifecycle();
  }
  return true;
}

}  // namespace launcher
