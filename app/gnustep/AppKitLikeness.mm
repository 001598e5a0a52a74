#import "app/gnustep/AppKitLikeness.h"

#import <Foundation/Foundation.h>

namespace launcher {

void installAppKitLikeness() {
  @autoreleasepool {
    registerLanguages();
    registerDefaults();
    installContentSize();
    installCopyAndPaste();
    installFieldEditor();
    installNoServers();
    installPlaceholders();
    installViewLifecycle();
    installLayers();
    installWindowLevel();
  }
}

}  // namespace launcher
