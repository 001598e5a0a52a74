#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "net/LinkDetector.h"

namespace launcher {

/// A detector that answers as it is told and notes what it was asked.
class FakeLinkDetector : public LinkDetector {
 public:
  explicit FakeLinkDetector(std::optional<LinkMatch> match = std::nullopt)
      : match_(std::move(match)) {}

  std::optional<LinkMatch> firstMatch(std::u16string_view text, std::size_t length) const override {
    lastText = text;
    lastLength = length;
    ++searches;
    return match_;
  }

  mutable std::u16string lastText;
  mutable std::size_t lastLength = 0;
  mutable int searches = 0;

 private:
  std::optional<LinkMatch> match_;
};

/// A match with the URL that a text spells, or with none.
inline LinkMatch linkMatch(std::string_view url, std::size_t location, std::size_t length) {
  return {Url::parse(url), location, length};
}

}  // namespace launcher
