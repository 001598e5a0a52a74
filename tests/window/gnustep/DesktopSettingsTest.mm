// What the desktop has laid down on the display, as its daemon does it.

#include "app/gnustep/DesktopSettings.h"

#include <gtest/gtest.h>

#include "app/gnustep/XConnection.h"

namespace launcher {
namespace {

using namespace std::string_literals;

void put(const XConnection& connection, xcb_window_t window, xcb_atom_t property,
         const std::string& bytes) {
  xcb_change_property(connection.get(), XCB_PROP_MODE_REPLACE, window, property, XCB_ATOM_STRING, 8,
                      static_cast<std::uint32_t>(bytes.size()), bytes.data());
}

/// Waits until the display has done all that it was asked for.
void finish(const XConnection& connection) { connection.atom("_XSETTINGS_S0"); }

TEST(DesktopSettings, WithoutADaemonThereAreNone) {
  const auto [settings, resources] = desktopSettings();
  EXPECT_TRUE(settings.texts.empty());
  EXPECT_TRUE(settings.numbers.empty());
}

TEST(DesktopSettings, AreTheDaemons) {
  const XConnection daemon;
  put(daemon, daemon.window(), daemon.atom("_XSETTINGS_SETTINGS"),
      "\0\0\0\0\x01\0\0\0\x01\0\0\0\0\0\x07\0Xft/DPI\0\0\0\0\0\0\0\x03\0"s);
  xcb_set_selection_owner(daemon.get(), daemon.window(), daemon.atom("_XSETTINGS_S0"),
                          XCB_CURRENT_TIME);
  finish(daemon);
  EXPECT_EQ(desktopSettings().settings.numbers,
            (std::map<std::string, std::int32_t>{{"Xft/DPI", 196608}}));
}

TEST(DesktopSettings, TheResourcesAreTheDisplays) {
  const XConnection desktop;
  const auto root = xcb_setup_roots_iterator(xcb_get_setup(desktop.get())).data->root;
  const auto before = desktopSettings().resources;
  put(desktop, root, XCB_ATOM_RESOURCE_MANAGER, "Xft.dpi:\t192\n");
  finish(desktop);
  EXPECT_EQ(desktopSettings().resources, "Xft.dpi:\t192\n");
  put(desktop, root, XCB_ATOM_RESOURCE_MANAGER, before);
  finish(desktop);
}

}  // namespace
}  // namespace launcher
