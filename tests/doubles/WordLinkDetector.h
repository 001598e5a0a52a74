#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

#include "base/Unicode.h"
#include "net/LinkDetector.h"

namespace launcher {

/// A detector for tests that need no more than typed locations: the first word with "://" is the
/// link, if it is a URL, with a host or without. Words are parted by blanks.
///
///     "see https://h/a b"   -> https://h/a   at 4, 11 units
class WordLinkDetector : public LinkDetector {
 public:
  std::optional<LinkMatch> firstMatch(std::u16string_view text, std::size_t length) const override {
    const std::u16string_view range = text.substr(0, length);
    const std::size_t mark = range.find(u"://");
    if (mark == std::u16string_view::npos) return std::nullopt;

    const std::size_t begin = range.rfind(u' ', mark) + 1;  // 0 where there is no blank
    const std::size_t end = std::min(range.find(u' ', mark), range.size());
    const std::optional<Url> url = Url::parse(utf8(range.substr(begin, end - begin)));
    return url ? std::optional(LinkMatch{url, begin, end - begin}) : std::nullopt;
  }
};

}  // namespace launcher
