#include "bench/stage/WindowWatch.h"

#include <X11/Xatom.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xdamage.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <span>

#include "bench/stage/Clock.h"

namespace launcher {
namespace {

constexpr int kCaretWidth = 4;

struct XFreeData {
  void operator()(void* data) const { XFree(data); }
};

int passOver(Display* /*display*/, XErrorEvent* /*error*/) { return 0; }

/// The windows in the order in which the window manager came to know them.
std::vector<Window> managedWindows(Display* display) {
  const Atom list = XInternAtom(display, "_NET_CLIENT_LIST", False);
  Atom type = None;
  int format = 0;
  unsigned long count = 0;
  unsigned long left = 0;
  unsigned char* bytes = nullptr;
  XGetWindowProperty(display, DefaultRootWindow(display), list, 0, 1024, False, XA_WINDOW, &type,
                     &format, &count, &left, &bytes);
  const std::unique_ptr<unsigned char, XFreeData> owner(bytes);
  std::vector<Window> windows(format == 32 ? count : 0);
  if (!windows.empty()) std::memcpy(windows.data(), bytes, windows.size() * sizeof(Window));
  return windows;
}

bool overlap(const XRectangle& a, const XRectangle& b) {
  return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

}  // namespace

WindowWatch::WindowWatch(Display* display) : display_(display) {
  XSetErrorHandler(passOver);
  const Window root = DefaultRootWindow(display_);
  int errorEvent = 0;
  XDamageQueryExtension(display_, &damageEvent_, &errorEvent);
  XDamageCreate(display_, root, XDamageReportRawRectangles);
  XSelectInput(display_, root, SubstructureNotifyMask);
  XSync(display_, False);
}

void WindowWatch::takeEvents() {
  const std::int64_t now = monotonicNow();
  while (XPending(display_) > 0) {
    XEvent event{};
    XNextEvent(display_, &event);
    if (event.type == MapNotify) mapped_[event.xmap.window] = now;
    if (event.type == damageEvent_ + XDamageNotify) {
      XDamageNotifyEvent damage{};
      std::memcpy(&damage, &event, sizeof damage);
      paintings_.push_back({now, damage.area});
    }
  }
}

std::optional<Window> WindowWatch::window() const {
  for (const Window window : managedWindows(display_)) {
    XWindowAttributes attributes{};
    const bool known = XGetWindowAttributes(display_, window, &attributes) != 0;
    if (known && attributes.map_state == IsViewable && canBeClosed(window)) return window;
  }
  return std::nullopt;
}

std::optional<std::int64_t> WindowWatch::mappedAt(Window window) const {
  const auto found = mapped_.find(frameOf(window));
  return found == mapped_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::int64_t> WindowWatch::paintedAt(Window window) const {
  const XRectangle inside = areaOf(window);
  const auto last = std::find_if(paintings_.rbegin(), paintings_.rend(), [&](const auto& painting) {
    return painting.area.width > kCaretWidth && overlap(painting.area, inside);
  });
  return last == paintings_.rend() ? std::nullopt : std::optional(last->time);
}

std::optional<std::int64_t> WindowWatch::anyPaintedAt() const {
  return paintings_.empty() ? std::nullopt : std::optional(paintings_.back().time);
}

bool WindowWatch::canBeClosed(Window window) const {
  const Atom closes = XInternAtom(display_, "WM_DELETE_WINDOW", False);
  Atom* protocols = nullptr;
  int count = 0;
  if (XGetWMProtocols(display_, window, &protocols, &count) == 0) return false;
  const std::unique_ptr<Atom, XFreeData> owner(protocols);
  const std::span all(protocols, static_cast<std::size_t>(count));
  return std::find(all.begin(), all.end(), closes) != all.end();
}

XRectangle WindowWatch::areaOf(Window window) const {
  XWindowAttributes attributes{};
  XGetWindowAttributes(display_, window, &attributes);
  int x = 0;
  int y = 0;
  Window child = None;
  XTranslateCoordinates(display_, window, DefaultRootWindow(display_), 0, 0, &x, &y, &child);
  return {static_cast<short>(x), static_cast<short>(y),
          static_cast<unsigned short>(attributes.width),
          static_cast<unsigned short>(attributes.height)};
}

/// The window manager's window around a window; the window itself where there is none.
Window WindowWatch::frameOf(Window window) const {
  for (Window at = window;;) {
    Window root = None;
    Window parent = None;
    Window* children = nullptr;
    unsigned int count = 0;
    if (XQueryTree(display_, at, &root, &parent, &children, &count) == 0) return at;
    const std::unique_ptr<Window, XFreeData> owner(children);
    if (parent == root) return at;
    at = parent;
  }
}

}  // namespace launcher
