#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "base/Unicode.h"
#include "net/LinkDetector.h"

namespace launcher {

/// The first link of a text as "URL at LOCATION+LENGTH", or "none".
inline std::string foundLink(std::u16string_view text, std::size_t length) {
  const auto match = makeLinkDetector()->firstMatch(text, length);
  if (!match) return "none";
  const std::string url = match->url ? match->url->absoluteString() : "no URL";
  return url + " at " + std::to_string(match->location) + "+" + std::to_string(match->length);
}

inline std::string foundLink(std::string_view text) {
  const std::u16string units = utf16(text);
  return foundLink(units, units.size());
}

struct LinkCase {
  std::string_view text;
  std::string_view link;
};

}  // namespace launcher
