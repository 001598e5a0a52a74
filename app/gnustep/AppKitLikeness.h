#pragma once

namespace launcher {

/// Make GNUstep's AppKit behave like the platform's. Once, before the application's main function.
void registerLanguages();
void registerDefaults();
void installContentSize();
void installCopyAndPaste();
void installFieldEditor();
void installNoServers();
void installPlaceholders();
void installViewLifecycle();
void installLayers();
void installWindowLevel();

/// All of the above.
void installAppKitLikeness();

}  // namespace launcher
