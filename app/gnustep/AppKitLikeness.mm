#import "app/gnustep/AppKitLikeness.h"

#import <Foundation/Foundation.h>

namespace launcher {

void installAppKitLikeness() {
  @autoreleasepool {
    registerDefaults();
    installViewLifecycle();
    installLayers();
    installWindowLevel();
  }
}

}  // namespace launcher
