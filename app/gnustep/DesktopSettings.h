#pragma once

#include <string>

#include "app/desktop/XSettings.h"

namespace launcher {

/// What the desktop has laid down on the display; empty where there is no desktop, or no display.
struct DesktopSettings {
  XSettings settings;     ///< of its settings daemon
  std::string resources;  ///< lines of names and values
};

DesktopSettings desktopSettings();

}  // namespace launcher
