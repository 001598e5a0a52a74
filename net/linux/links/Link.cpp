#include "net/linux/links/Link.h"

#include <string>

#include "base/Unicode.h"
#include "base/UrlSyntax.h"
#include "net/linux/links/HostName.h"

namespace launcher::links {
namespace {

/// Escapes the part before the host: the scheme, credentials and the last "@", if they are there.
std::string escapedFront(std::string_view front) {
  if (!front.ends_with('@')) return std::string(front);
  const std::size_t slashes = front.find("//");
  const std::size_t begin = slashes == std::string_view::npos ? front.rfind(':') + 1 : slashes + 2;
  const std::string_view credentials = front.substr(begin, front.size() - begin - 1);
  return std::string(front.substr(0, begin)) + escapedKeepingEscapes(credentials, kUserInfoBytes) +
         "@";
}

std::optional<Url> urlAsItStands(std::u16string_view text, const Link& link) {
  std::string url(link.scheme);
  url += utf8(text.substr(link.begin, link.end - link.begin));
  return Url::parse(url);
}

std::optional<Url> urlWithEscapes(std::u16string_view text, const Link& link) {
  const auto host = asciiHost(text.substr(link.hostBegin, link.hostEnd - link.hostBegin));
  if (!host) return std::nullopt;
  std::string url(link.scheme);
  url += escapedFront(utf8(text.substr(link.begin, link.hostBegin - link.begin)));
  url += *host;
  url += escapedTail(utf8(text.substr(link.hostEnd, link.end - link.hostEnd)));
  return Url::parse(url);
}

}  // namespace

std::optional<LinkMatch> matchOf(std::u16string_view text, const Link& link) {
  std::optional<Url> url = urlAsItStands(text, link);
  if (!url) url = urlWithEscapes(text, link);
  if (!url) return std::nullopt;
  return LinkMatch{std::move(url), link.begin, link.end - link.begin};
}

}  // namespace launcher::links
