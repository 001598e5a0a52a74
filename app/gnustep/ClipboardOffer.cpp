#include <cstring>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

#include "app/gnustep/Clipboard.h"
#include "app/gnustep/SelectionAtom.h"
#include "app/gnustep/XConnection.h"

namespace launcher {
namespace {

/// Answers the programs that ask for what this one offers, on a thread of its own.
class Offer {
 public:
  Offer() {
    if (connection_.works()) std::thread([this] { answerRequests(); }).detach();
  }

  void put(Selection selection, const std::string& text) {
    const xcb_atom_t atom = selectionAtom(connection_, selection);
    {
      const std::lock_guard lock(mutex_);
      texts_[atom] = text;
    }
    xcb_set_selection_owner(connection_.get(), connection_.window(), atom, XCB_CURRENT_TIME);
    xcb_flush(connection_.get());
  }

 private:
  void answerRequests() {
    while (const auto event = connection_.nextEvent()) {
      if ((event->response_type & 0x7f) != XCB_SELECTION_REQUEST) continue;
      xcb_selection_request_event_t request;
      std::memcpy(&request, event.get(), sizeof request);
      answer(request);
    }
  }

  void answer(const xcb_selection_request_event_t& request) {
    const bool known = write(request);
    xcb_selection_notify_event_t reply{};
    reply.response_type = XCB_SELECTION_NOTIFY;
    reply.time = request.time;
    reply.requestor = request.requestor;
    reply.selection = request.selection;
    reply.target = request.target;
    reply.property = known ? request.property : XCB_ATOM_NONE;

    std::vector<char> bytes(32);  // as long as every event on the wire
    std::memcpy(bytes.data(), &reply, sizeof reply);
    xcb_send_event(connection_.get(), 0, request.requestor, 0, bytes.data());
    xcb_flush(connection_.get());
  }

  /// Writes the answer into the asking program's window; false for a form that is not offered.
  bool write(const xcb_selection_request_event_t& request) {
    if (request.target == targets_) {
      const std::vector<xcb_atom_t> offered{targets_, utf8_, plainText_};
      xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, request.requestor,
                          request.property, XCB_ATOM_ATOM, 32,
                          static_cast<std::uint32_t>(offered.size()), offered.data());
      return true;
    }
    if (request.target != utf8_ && request.target != plainText_) return false;

    const std::lock_guard lock(mutex_);
    const std::string& text = texts_[request.selection];
    if (text.size() > longest()) return false;
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, request.requestor,
                        request.property, request.target, 8,
                        static_cast<std::uint32_t>(text.size()), text.data());
    return true;
  }

  /// What goes into one request; a text of a field is never longer.
  std::size_t longest() const {
    return xcb_get_maximum_request_length(connection_.get()) * std::size_t{4} - 64;
  }

  XConnection connection_;
  const xcb_atom_t targets_ = connection_.atom("TARGETS");
  const xcb_atom_t utf8_ = connection_.atom("UTF8_STRING");
  const xcb_atom_t plainText_ = connection_.atom("text/plain;charset=utf-8");
  std::mutex mutex_;
  std::map<xcb_atom_t, std::string> texts_;
};

}  // namespace

void offerText(Selection selection, const std::string& text) {
  static auto* const offer = new Offer;  // never destroyed: its thread runs until the program ends
  offer->put(selection, text);
}

}  // namespace launcher
