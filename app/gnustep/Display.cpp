#include "app/gnustep/Display.h"

#include <X11/Xlib.h>

namespace launcher {

bool hasDisplay() {
  Display* display = XOpenDisplay(nullptr);
  if (display == nullptr) return false;
  XCloseDisplay(display);
  return true;
}

}  // namespace launcher
