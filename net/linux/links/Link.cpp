#include "net/linux/links/Link.h"

#include <string>
#include <utility>

#include "base/Unicode.h"
#include "base/UrlSyntax.h"
#include "net/linux/links/HostName.h"

namespace launcher::links {
namespace {

constexpr ByteSet kFrontBytes{kLetters, kDigits, kUnreservedMarks, kSubDelimiters, ":/"};

/// Escapes the part before the host: the scheme, credentials and the last "@", if they are there.
std::string escapedFront(std::string_view front) {
  const bool hasCredentials = front.ends_with('@');
  if (hasCredentials) front.remove_suffix(1);
  return escapedKeepingEscapes(front, kFrontBytes) + (hasCredentials ? "@" : "");
}

std::optional<Url> urlWithEscapes(std::u16string_view text, const Link& link) {
  const auto host = asciiHost(text.substr(link.hostBegin, link.hostEnd - link.hostBegin));
  if (!host) return std::nullopt;
  return Url::parse(std::string(link.scheme) +
                    escapedFront(utf8(text.substr(link.begin, link.hostBegin - link.begin))) +
                    *host + escapedTail(utf8(text.substr(link.hostEnd, link.end - link.hostEnd))));
}

}  // namespace

std::optional<LinkMatch> matchOf(std::u16string_view text, const Link& link) {
  const std::size_t length = link.end - link.begin;
  // Few links need escapes, and looking for them takes longer.
  std::optional<Url> url =
      Url::parse(std::string(link.scheme) + utf8(text.substr(link.begin, length)));
  if (!url) url = urlWithEscapes(text, link);
  if (!url) return std::nullopt;
  return LinkMatch{std::move(url), link.begin, length};
}

}  // namespace launcher::links
