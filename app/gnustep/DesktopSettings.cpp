#include "app/gnustep/DesktopSettings.h"

#include "app/gnustep/XConnection.h"

namespace launcher {
namespace {

constexpr std::uint32_t everything = UINT32_MAX / 4;

std::string propertyOf(const XConnection& connection, xcb_window_t window, xcb_atom_t property) {
  const auto request = xcb_get_property(connection.get(), 0, window, property,
                                        XCB_GET_PROPERTY_TYPE_ANY, 0, everything);
  const XReply<xcb_get_property_reply_t> reply(
      xcb_get_property_reply(connection.get(), request, nullptr));
  if (!reply) return {};
  const auto length = static_cast<std::size_t>(xcb_get_property_value_length(reply.get()));
  return {static_cast<const char*>(xcb_get_property_value(reply.get())), length};
}

/// The window of the settings daemon; none where none runs.
xcb_window_t daemonOf(const XConnection& connection) {
  const auto request = xcb_get_selection_owner(connection.get(), connection.atom("_XSETTINGS_S0"));
  const XReply<xcb_get_selection_owner_reply_t> reply(
      xcb_get_selection_owner_reply(connection.get(), request, nullptr));
  return reply ? reply->owner : XCB_WINDOW_NONE;
}

}  // namespace

DesktopSettings desktopSettings() {
  const XConnection connection;
  if (!connection.works()) return {};
  const auto root = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root;
  const auto daemon = daemonOf(connection);
  const auto told = connection.atom("_XSETTINGS_SETTINGS");
  return {.settings = daemon == XCB_WINDOW_NONE
                          ? XSettings()
                          : parseXSettings(propertyOf(connection, daemon, told)),
          .resources = propertyOf(connection, root, XCB_ATOM_RESOURCE_MANAGER)};
}

}  // namespace launcher
