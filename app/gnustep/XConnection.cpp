#include "app/gnustep/XConnection.h"

#include <poll.h>

#include <algorithm>

namespace launcher {
namespace {

int millisecondsUntil(std::chrono::steady_clock::time_point deadline) {
  const auto left = deadline - std::chrono::steady_clock::now();
  const auto milliseconds = std::chrono::ceil<std::chrono::milliseconds>(left).count();
  return static_cast<int>(std::max<std::int64_t>(milliseconds, 0));
}

}  // namespace

XConnection::XConnection() : connection_(xcb_connect(nullptr, nullptr)) {
  if (!works()) return;
  const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  window_ = xcb_generate_id(connection_);
  xcb_create_window(connection_, 0, window_, screen->root, 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
}

XConnection::~XConnection() { xcb_disconnect(connection_); }

bool XConnection::works() const { return xcb_connection_has_error(connection_) == 0; }

xcb_atom_t XConnection::atom(std::string_view name) const {
  const auto request =
      xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_, request, nullptr));
  return reply ? reply->atom : XCB_ATOM_NONE;
}

XReply<xcb_generic_event_t> XConnection::nextEvent() const {
  return XReply<xcb_generic_event_t>(xcb_wait_for_event(connection_));
}

XReply<xcb_generic_event_t> XConnection::nextEvent(
    std::chrono::steady_clock::time_point deadline) const {
  while (works()) {
    XReply<xcb_generic_event_t> event(xcb_poll_for_event(connection_));
    if (event) return event;
    pollfd readable{xcb_get_file_descriptor(connection_), POLLIN, 0};
    if (poll(&readable, 1, millisecondsUntil(deadline)) == 0) break;
  }
  return nullptr;
}

}  // namespace launcher
