#include "net/linux/links/Authority.h"

#include <arpa/inet.h>

#include "base/PercentEncoding.h"
#include "base/Unicode.h"
#include "net/linux/links/Traits.h"

namespace launcher::links {
namespace {

constexpr std::size_t kLongestPort = 5;
constexpr std::size_t kLongestAddress = INET6_ADDRSTRLEN;

bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

bool isEscape(std::u16string_view text, std::size_t at) {
  return unitIs(text, at, u'%') && beginsWithEscape(utf8(text.substr(at, 3)));
}

/// Credentials end at the last "@" before the host.
std::size_t skipCredentials(std::u16string_view text, std::size_t at) {
  std::size_t host = at;
  for (std::size_t end = skip(text, at, inUserInfo); unitIs(text, end, u'@');
       end = skip(text, host, inUserInfo)) {
    host = end + 1;
  }
  return host;
}

std::size_t skipLabel(std::u16string_view text, std::size_t at) {
  at = skip(text, at, inLabel);
  while (isEscape(text, at)) at = skip(text, at + 3, inLabel);
  return at;
}

/// A full stop belongs to the name if a label follows, or a path or port.
std::size_t skipName(std::u16string_view text, std::size_t at) {
  std::size_t end = skipLabel(text, at);
  while (end > at && unitIs(text, end, u'.')) {
    const std::size_t next = skipLabel(text, end + 1);
    const bool atRoot = next == end + 1;
    if (atRoot && (unitIs(text, next, u'/') || skipPort(text, next) > next)) return next;
    if (atRoot) return end;
    end = next;
  }
  return end;
}

bool isAddress(std::u16string_view text) {
  in6_addr ignored{};
  return inet_pton(AF_INET6, utf8(text).c_str(), &ignored) == 1;
}

std::size_t skipBracketedAddress(std::u16string_view text, std::size_t at) {
  const std::u16string_view rest = text.substr(at + 1, kLongestAddress);
  const std::size_t length = rest.find(u']');
  if (length == std::u16string_view::npos || !isAddress(rest.substr(0, length))) return at;
  return at + 1 + length + 1;
}

}  // namespace

std::size_t skipPort(std::u16string_view text, std::size_t at) {
  if (!unitIs(text, at, u':')) return at;
  std::size_t end = at + 1;
  while (end < text.size() && isDigit(text[end])) ++end;
  const std::size_t digits = end - at - 1;
  return digits >= 1 && digits <= kLongestPort ? end : at;
}

std::optional<Authority> readAuthority(std::u16string_view text, std::size_t at) {
  const std::size_t host = skipCredentials(text, at);
  const std::size_t end =
      unitIs(text, host, u'[') ? skipBracketedAddress(text, host) : skipName(text, host);
  if (end == host) return std::nullopt;
  return Authority{host, end, skipPort(text, end)};
}

}  // namespace launcher::links
