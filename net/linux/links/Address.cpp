#include "net/linux/links/Address.h"

#include <arpa/inet.h>

#include "base/PercentEncoding.h"
#include "base/Unicode.h"
#include "net/linux/links/Characters.h"

namespace launcher::links {
namespace {

constexpr std::size_t kLongestPort = 5;
constexpr std::size_t kLongestAddress = INET6_ADDRSTRLEN;

/// Credentials end at the last "@" before the host.
std::size_t skipCredentials(std::u16string_view text, std::size_t at) {
  const std::size_t end = skip(text, at, kInCredentials);
  return at + text.substr(at, end - at).rfind(u'@') + 1;
}

bool isEscape(std::u16string_view text, std::size_t at) {
  return unitIs(text, at, u'%') && leadingEscape(utf8(text.substr(at, 3)));
}

std::size_t skipLabel(std::u16string_view text, std::size_t at) {
  at = skip(text, at, kInLabel);
  while (isEscape(text, at)) at = skip(text, at + 3, kInLabel);
  return at;
}

std::size_t skipPort(std::u16string_view text, std::size_t at) {
  if (!unitIs(text, at, u':')) return at;
  const std::size_t end = skip(text, at + 1, kInPort);
  const std::size_t digits = end - at - 1;
  return digits >= 1 && digits <= kLongestPort ? end : at;
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

/// Counts the open brackets of one kind. False for a closing bracket without an opening one.
bool balances(std::ptrdiff_t& open, UChar32 point, UChar32 opening, UChar32 closing) {
  if (point == opening) ++open;
  if (point == closing) --open;
  return open >= 0;
}

std::size_t skipTail(std::u16string_view text, std::size_t at) {
  if (!unitIs(text, at, u'/') && !unitIs(text, at, u'?') && !unitIs(text, at, u'#')) return at;
  std::ptrdiff_t round = 0;
  std::ptrdiff_t square = 0;
  std::size_t end = at;
  while (at < text.size()) {
    const UChar32 point = takeCodePoint(text, at);
    if (!holds(kInTail, point)) break;
    if (!balances(round, point, '(', ')') || !balances(square, point, '[', ']')) break;
    if (holds(kAtEnd, point)) end = at;
  }
  return end;
}

}  // namespace

std::optional<Link> readAddress(std::u16string_view text, std::size_t at) {
  const std::size_t host = skipCredentials(text, at);
  const std::size_t end =
      unitIs(text, host, u'[') ? skipBracketedAddress(text, host) : skipName(text, host);
  if (end == host) return std::nullopt;
  return Link{"", at, host, end, skipPortAndTail(text, end)};
}

std::size_t skipPortAndTail(std::u16string_view text, std::size_t at) {
  return skipTail(text, skipPort(text, at));
}

}  // namespace launcher::links
