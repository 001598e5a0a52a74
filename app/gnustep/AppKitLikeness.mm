#import "app/gnustep/AppKitLikeness.h"

#import <Foundation/Foundation.h>

namespace launcher {

void installAppKitLikeness() {
  @autoreleasepool {
    registerLanguages();
    registerDefaults();
    registerColours();
    installImageFormats();
    installNoServers();
    installDisplayLoss();
    installEventQueue();
    installViewLifecycle();
    installWindowLimits();
    installWindowLevel();
    installLayers();
    installFocusRing();
    installPlaceholders();
    installFieldEditor();
    installCopyAndPaste();
    installAlerts();
    installHiding();
    installButtonTitles();
    installMenuKeys();
    installTheme();
  }
}

}  // namespace launcher
