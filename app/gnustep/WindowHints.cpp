#include "app/gnustep/WindowHints.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace launcher {

void keepAbove(void* toolkitDisplay, XWindow window) {
  constexpr long add = 1;
  constexpr long fromApplication = 1;

  auto* display = static_cast<Display*>(toolkitDisplay);
  const Atom state = XInternAtom(display, "_NET_WM_STATE", False);
  const Atom above = XInternAtom(display, "_NET_WM_STATE_ABOVE", False);

  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = state;
  event.xclient.format = 32;
  event.xclient.data.l[0] = add;
  event.xclient.data.l[1] = static_cast<long>(above);
  event.xclient.data.l[3] = fromApplication;
  XSendEvent(display, DefaultRootWindow(display), False,
             SubstructureRedirectMask | SubstructureNotifyMask, &event);
  XFlush(display);
}

void setTransient(void* toolkitDisplay, XWindow dialogue, XWindow owner) {
  auto* display = static_cast<Display*>(toolkitDisplay);
  XSetTransientForHint(display, dialogue, owner);

  const Atom type = XInternAtom(display, "_NET_WM_WINDOW_TYPE", False);
  const Atom isDialogue = XInternAtom(display, "_NET_WM_WINDOW_TYPE_DIALOG", False);
  constexpr int bits = 32;
  XChangeProperty(display, dialogue, type, XA_ATOM, bits, PropModeReplace,
                  reinterpret_cast<const unsigned char*>(&isDialogue), 1);
}

void setClass(void* toolkitDisplay, XWindow window, std::string name) {
  auto* display = static_cast<Display*>(toolkitDisplay);
  XClassHint hint{name.data(), name.data()};
  XSetClassHint(display, window, &hint);
}

}  // namespace launcher
