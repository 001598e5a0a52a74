#pragma once

#include <X11/Xlib.h>

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace launcher {

/// The times at which something happened on a display. Xlib's errors about windows that have gone
/// meanwhile are passed over.
class WindowWatch {
 public:
  explicit WindowWatch(Display* display);

  /// Where the display's events arrive.
  int descriptor() const { return ConnectionNumber(display_); }

  /// Forgets what was painted so far.
  void forgetPainting() { paintings_.clear(); }

  /// Takes note of the events that have arrived.
  void takeEvents();

  /// The first window that is shown, can be closed, and is under a window manager's care; absent
  /// while there is none.
  std::optional<Window> window() const;

  /// When the window, with its frame, was mapped.
  std::optional<std::int64_t> mappedAt(Window window) const;

  /// When anything within the window was painted last; what is as narrow as a caret does not count.
  std::optional<std::int64_t> paintedAt(Window window) const;

  /// When anything on the display was painted last.
  std::optional<std::int64_t> anyPaintedAt() const;

 private:
  struct Painting {
    std::int64_t time;
    XRectangle area;
  };

  bool canBeClosed(Window window) const;
  XRectangle areaOf(Window window) const;
  Window frameOf(Window window) const;

  Display* display_;
  int damageEvent_ = 0;
  std::map<Window, std::int64_t> mapped_;
  std::vector<Painting> paintings_;
};

}  // namespace launcher
