#import "app/gnustep/AppKitLikeness.h"

#import <Foundation/Foundation.h>

namespace launcher {

void installAppKitLikeness() {
  @autoreleasepool {
    registerLanguages();
    registerDefaults();
    installViewLifecycle();
    installLayers();
    installWindowLevel();
  }
}

}  // namespace launcher
