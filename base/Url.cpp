#include "base/Url.h"

#include "base/UrlSyntax.h"

namespace launcher {
namespace {

/// Whether it is a web address with a host. After the host, browsers leave characters that no URL
/// holds.
bool isWebAddress(std::string_view text) {
  if (!text.starts_with("http://") && !text.starts_with("https://")) return false;
  return !hostIn(*splitUrl(text).authority).empty();
}

}  // namespace

std::optional<Url> Url::repaired(std::string_view text) {
  if (auto url = parse(text)) return url;
  if (!isWebAddress(text)) return std::nullopt;
  const UrlParts parts = splitUrl(text);
  const std::size_t pathAndTail = parts.path.size() + parts.tail.size();
  const std::string_view front = text.substr(0, text.size() - pathAndTail);
  return parse(std::string(front) + escapedTail(text.substr(front.size())));
}

}  // namespace launcher
