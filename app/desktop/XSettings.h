#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace launcher {

/// What a desktop tells all programs on a display, by name: "Gtk/FontName", "Xft/DPI".
struct XSettings {
  std::map<std::string, std::string> texts;
  std::map<std::string, std::int32_t> numbers;
};

/// Reads the property in which a desktop's settings daemon keeps them. What cannot be understood
/// ends the reading; what came before it stays.
XSettings parseXSettings(std::string_view bytes);

}  // namespace launcher
