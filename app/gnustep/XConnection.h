#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace launcher {

struct FreeReply {
  void operator()(void* reply) const { std::free(reply); }
};

template <class Reply>
using XReply = std::unique_ptr<Reply, FreeReply>;

/// A connection to the display of its own, with a window that is never shown. For one thread.
class XConnection {
 public:
  XConnection();
  ~XConnection();
  XConnection(const XConnection&) = delete;
  XConnection& operator=(const XConnection&) = delete;

  /// Whether there is a display.
  bool works() const;

  xcb_connection_t* get() const { return connection_; }
  xcb_window_t window() const { return window_; }
  xcb_atom_t atom(std::string_view name) const;

  /// The next event, waited for; null once the connection is lost.
  XReply<xcb_generic_event_t> nextEvent() const;

  /// The next event, waited for until `deadline`; null when that has passed or the connection is
  /// lost.
  XReply<xcb_generic_event_t> nextEvent(std::chrono::steady_clock::time_point deadline) const;

 private:
  xcb_connection_t* connection_;
  xcb_window_t window_ = 0;
};

}  // namespace launcher
