#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "net/LinkDetector.h"

namespace launcher::links {

/// The place of a link in a text, and of the host in it.
struct Link {
  std::string_view scheme;  ///< the scheme that the text leaves out: "http://", "mailto:"
  std::size_t begin = 0;
  std::size_t hostBegin = 0;
  std::size_t hostEnd = 0;
  std::size_t end = 0;
};

/// Makes the link's URL: with an international host in its Punycode form, and escapes for what a
/// URL cannot hold. Absent if the host has no such form. Any thread.
std::optional<LinkMatch> matchOf(std::u16string_view text, const Link& link);

}  // namespace launcher::links
