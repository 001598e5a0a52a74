#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/Unicode.h"
#include "net/LinkDetector.h"

namespace launcher {

/// A detector for tests that need no more than typed locations: the whole range is the link where
/// it is a URL with a scheme and a host.
class WholeTextLinkDetector : public LinkDetector {
 public:
  std::optional<LinkMatch> firstMatch(std::u16string_view text, std::size_t length) const override {
    const std::optional<Url> url = Url::parse(utf8(text.substr(0, length)));
    if (!url || !url->scheme() || !url->host()) return std::nullopt;
    return LinkMatch{url, 0, length};
  }
};

}  // namespace launcher
