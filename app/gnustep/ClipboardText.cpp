#include <cstring>

#include "app/gnustep/Clipboard.h"
#include "app/gnustep/SelectionAtom.h"
#include "app/gnustep/XConnection.h"

namespace launcher {
namespace {

using Clock = std::chrono::steady_clock;

/// Asks for the clipboard's text and gathers the answer, which may come in pieces.
class Question {
 public:
  std::optional<std::string> ask(Selection selection) {
    if (!connection_.works()) return std::nullopt;
    xcb_convert_selection(connection_.get(), connection_.window(),
                          selectionAtom(connection_, selection), connection_.atom("UTF8_STRING"),
                          answer_, XCB_CURRENT_TIME);
    xcb_flush(connection_.get());

    if (!answered()) return std::nullopt;
    const auto whole = taken();
    return inPieces_ ? gathered() : whole;
  }

 private:
  /// Waits until the offering program has answered; false where it has not or cannot.
  bool answered() {
    while (const auto event = connection_.nextEvent(deadline_)) {
      if ((event->response_type & 0x7f) != XCB_SELECTION_NOTIFY) continue;
      xcb_selection_notify_event_t notice;
      std::memcpy(&notice, event.get(), sizeof notice);
      return notice.property != XCB_ATOM_NONE;
    }
    return false;
  }

  /// Waits until the offering program has written the next piece.
  bool nextPiece() {
    while (const auto event = connection_.nextEvent(deadline_)) {
      if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY) continue;
      xcb_property_notify_event_t notice;
      std::memcpy(&notice, event.get(), sizeof notice);
      if (notice.atom == answer_ && notice.state == XCB_PROPERTY_NEW_VALUE) return true;
    }
    return false;
  }

  /// Takes what was written away, which asks for the next piece, if there is one.
  std::string taken() {
    constexpr std::uint32_t everything = UINT32_MAX / 4;
    const auto request = xcb_get_property(connection_.get(), 1, connection_.window(), answer_,
                                          XCB_GET_PROPERTY_TYPE_ANY, 0, everything);
    const XReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_.get(), request, nullptr));
    if (!reply) return {};
    inPieces_ = inPieces_ || reply->type == pieces_;
    const auto length = static_cast<std::size_t>(xcb_get_property_value_length(reply.get()));
    return {static_cast<const char*>(xcb_get_property_value(reply.get())), length};
  }

  /// The pieces up to the empty one that ends them.
  std::optional<std::string> gathered() {
    std::string text;
    while (nextPiece()) {
      const std::string piece = taken();
      if (piece.empty()) return text;
      text += piece;
    }
    return std::nullopt;
  }

  XConnection connection_;
  const Clock::time_point deadline_ = Clock::now() + std::chrono::seconds(1);
  const xcb_atom_t answer_ = connection_.atom("VORX_LAUNCHER_CLIPBOARD");
  const xcb_atom_t pieces_ = connection_.atom("INCR");
  bool inPieces_ = false;
};

}  // namespace

std::optional<std::string> offeredText(Selection selection) { return Question().ask(selection); }

}  // namespace launcher
