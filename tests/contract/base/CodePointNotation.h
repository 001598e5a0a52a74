#pragma once

#include <sstream>
#include <string>

namespace launcher {

/// The text that code points spell: "0044 0307" is a letter and its dot.
inline std::u16string unitsOf(std::string_view notation) {
  std::u16string units;
  std::istringstream words{std::string(notation)};
  for (std::string word; words >> word;) {
    const unsigned long point = std::stoul(word, nullptr, 16);
    if (point >= 0x10000) {
      units.push_back(static_cast<char16_t>(0xD7C0 + (point >> 10)));
      units.push_back(static_cast<char16_t>(0xDC00 + (point & 0x3FF)));
    } else {
      units.push_back(static_cast<char16_t>(point));
    }
  }
  return units;
}

}  // namespace launcher
