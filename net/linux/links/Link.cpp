#include "net/linux/links/Link.h"

#include <string>

#include "base/PercentEncoding.h"
#include "base/Unicode.h"
#include "net/linux/links/HostName.h"

namespace launcher::links {
namespace {

constexpr ByteSet kUrlBytes{kLetters, kDigits, "-._~!$&'()*+,;=:@/?[]"};

/// A "%" that begins no escape and a "#" after the first are escaped too.
std::string escapedPart(std::u16string_view part) {
  const std::string text = utf8(part);
  const std::string_view all = text;
  std::string result;
  bool fragmentSeen = false;
  for (std::size_t at = 0; at < all.size(); ++at) {
    const std::string_view byte = all.substr(at, 1);
    const bool fragment = byte == "#" && !fragmentSeen;
    const bool kept = fragment || beginsWithEscape(all.substr(at));
    fragmentSeen = fragmentSeen || fragment;
    result += kept ? std::string(byte) : escaped(byte, kUrlBytes);
  }
  return result;
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
  url += escapedPart(text.substr(link.begin, link.hostBegin - link.begin));
  url += *host;
  url += escapedPart(text.substr(link.hostEnd, link.end - link.hostEnd));
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
