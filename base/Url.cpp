#include "base/Url.h"

#include "base/UrlSyntax.h"

namespace launcher {
namespace {

bool isWebAddress(std::string_view text) {
  return text.starts_with("http://") || text.starts_with("https://");
}

}  // namespace

/// After the host, browsers leave characters that no URL holds.
std::optional<Url> Url::repaired(std::string_view text) {
  if (auto url = parse(text)) return url;
  if (!isWebAddress(text)) return std::nullopt;
  const std::string_view front = splitUrl(text).front;
  auto url = parse(std::string(front) + escapedTail(text.substr(front.size())));
  if (!url || url->host().value_or("").empty()) return std::nullopt;
  return url;
}

}  // namespace launcher
