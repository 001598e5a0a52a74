#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "net/LinkDetector.h"

namespace launcher::links {

/// A stretch of text that is a link, and where its host stands in it.
struct Link {
  std::string_view scheme;  ///< of the URL, where the text leaves it out: "http://", "mailto:"
  std::size_t begin = 0;
  std::size_t hostBegin = 0;
  std::size_t hostEnd = 0;
  std::size_t end = 0;
};

/// The link with its URL: an international host in its Punycode form, escapes for what a URL cannot
/// hold. Absent where the host has no such form. Any thread.
std::optional<LinkMatch> matchOf(std::u16string_view text, const Link& link);

}  // namespace launcher::links
