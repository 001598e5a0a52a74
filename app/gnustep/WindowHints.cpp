#include "app/gnustep/WindowHints.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <span>

namespace launcher {

namespace {

/// Gives a window a property made of numbers.
void putNumbers(Display* display, XWindow window, const char* name, Atom type,
                std::span<const unsigned long> numbers) {
  constexpr int bits = 32;
  XChangeProperty(display, window, XInternAtom(display, name, False), type, bits, PropModeReplace,
                  reinterpret_cast<const unsigned char*>(numbers.data()),
                  static_cast<int>(numbers.size()));
}

}  // namespace

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

  const Atom isDialogue = XInternAtom(display, "_NET_WM_WINDOW_TYPE_DIALOG", False);
  putNumbers(display, dialogue, "_NET_WM_WINDOW_TYPE", XA_ATOM, {&isDialogue, 1});
}

void setClass(void* toolkitDisplay, XWindow window, std::string name) {
  auto* display = static_cast<Display*>(toolkitDisplay);
  XClassHint hint{name.data(), name.data()};
  XSetClassHint(display, window, &hint);
}

void setIcon(void* toolkitDisplay, XWindow window, const std::vector<unsigned long>& icon) {
  if (icon.empty()) return;
  putNumbers(static_cast<Display*>(toolkitDisplay), window, "_NET_WM_ICON", XA_CARDINAL, icon);
}

}  // namespace launcher
