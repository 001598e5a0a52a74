#include "app/gnustep/Display.h"

#include <X11/Xlib.h>

#include <cstdio>
#include <cstdlib>

namespace launcher {

void requireDisplay() {
  Display* display = XOpenDisplay(nullptr);
  if (display == nullptr) {
    std::fputs("VorxLauncher: no display to show the window on\n", stderr);
    std::exit(EXIT_FAILURE);
  }
  XCloseDisplay(display);
}

}  // namespace launcher
