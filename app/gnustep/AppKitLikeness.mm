#import "app/gnustep/AppKitLikeness.h"

#import <Foundation/Foundation.h>

namespace launcher {

void installAppKitLikeness() {
  @autoreleasepool {
    installQuitSignals();
    registerLanguages();
    registerDefaults();
    registerColours();
    installImageFormats();
    installNoServers();
    installDisplayLoss();
    installEventQueue();
    installTheme();
    installViewLifecycle();
    installWindowLimits();
    installScaling();
    installWindowLevel();
    installWindowClass();
    installLayers();
    installFocusRing();
    installTextInset();
    installPlaceholders();
    installFieldEditor();
    installUndo();
    installCommandKeys();
    installCopyAndPaste();
    installAlerts();
    installAboutPanel();
    installHiding();
    installImages();
    installButtonTitles();
    installMenus();
  }
}

}  // namespace launcher
