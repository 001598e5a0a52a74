#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

#include "base/Url.h"

namespace launcher {

/// A link found in a text. Location and length count UTF-16 units.
struct LinkMatch {
  std::optional<Url> url;
  std::size_t location = 0;
  std::size_t length = 0;
};

/// Finds web links in free text. No state; any thread.
class LinkDetector {
 public:
  virtual ~LinkDetector() = default;

  /// The first link of `text`, if it lies wholly within the first `length` UTF-16 units; `length`
  /// is at most the text's length. A link that continues beyond counts as none. Absent if there is
  /// no link, or the platform cannot make a detector.
  ///
  ///     "see https://h.example/a."   -> https://h.example/a   at 4, 19 units
  ///     "h.example.com"              -> http://h.example.com  at 0, 13 units
  virtual std::optional<LinkMatch> firstMatch(std::u16string_view text,
                                              std::size_t length) const = 0;
};

std::unique_ptr<LinkDetector> makeLinkDetector();

}  // namespace launcher
