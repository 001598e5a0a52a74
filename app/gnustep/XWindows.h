#pragma once

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>

#include "app/gnustep/WindowHints.h"

namespace launcher {

/// The X window behind a window that has one.
inline XWindow xWindow(NSWindow* window) {
  void* device = [GSServerForWindow(window) windowDevice:static_cast<int>([window windowNumber])];
  return reinterpret_cast<XWindow>(device);
}

inline void* xDisplay(NSWindow* window) { return [GSServerForWindow(window) serverDevice]; }

}  // namespace launcher
