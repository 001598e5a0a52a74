#pragma once

#include <sstream>
#include <string>

namespace launcher {

/// A code point in UTF-16.
inline std::u16string unitsOf(char32_t point) {
  if (point < 0x10000) return {static_cast<char16_t>(point)};
  return {static_cast<char16_t>(0xD7C0 + (point >> 10)),
          static_cast<char16_t>(0xDC00 + (point & 0x3FF))};
}

/// The text that code points spell: "0044 0307" is a letter and its dot.
inline std::u16string unitsOf(std::string_view notation) {
  std::u16string units;
  std::istringstream words{std::string(notation)};
  for (std::string word; words >> word;) {
    units += unitsOf(static_cast<char32_t>(std::stoul(word, nullptr, 16)));
  }
  return units;
}

}  // namespace launcher
