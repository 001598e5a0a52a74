#pragma once

namespace launcher {

/// Makes GNUstep's AppKit behave like the platform's, and look like a program of today. Once,
/// before the application's main function.
void installAppKitLikeness();

// Its parts, each in the file of its name.
void installAboutPanel();
void installAlerts();
void installButtonTitles();
void installCommandKeys();
void installCopyAndPaste();
void installDisplayLoss();
void installEventQueue();
void installFieldEditor();
void installFocusRing();
void installHiding();
void installImages();
void installImageFormats();
void installLayers();
void installMenus();
void installNoServers();
void installPlaceholders();
void installQuitSignals();
void installScaling();
void installTextInset();
void installTheme();
void installUndo();
void installViewLifecycle();
void installWindowClass();
void installWindowLevel();
void installWindowLimits();
void registerColours();
void registerDefaults();
void registerLanguages();

}  // namespace launcher
