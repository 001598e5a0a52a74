#include "base/UrlSyntax.h"

#include <tuple>
#include <utility>

namespace launcher {
namespace {

constexpr ByteSet kAddressBytes{kHexDigits, ":."};
constexpr ByteSet kZoneBytes{kLetters, kDigits, kUnreservedMarks};
constexpr ByteSet kPortBytes{kDigits};
constexpr std::string_view kZoneMark = "%25";

/// Splits a text at the first of the given marks. The second part begins with it, or is empty if
/// there is none.
std::pair<std::string_view, std::string_view> splitAt(std::string_view text,
                                                      std::string_view marks) {
  const std::string_view before = text.substr(0, text.find_first_of(marks));
  return {before, text.substr(before.size())};
}

bool isScheme(std::string_view text) {
  return !text.empty() && kLetters.find(text.front()) != std::string_view::npos &&
         kSchemeBytes.holdsAll(text);
}

/// Whether it is an IPv6 address, with or without a zone: "fe80::1%25eth0".
bool isBracketedAddress(std::string_view text) {
  const auto [address, zone] = splitAt(text, "%");
  if (address.empty() || !kAddressBytes.holdsAll(address)) return false;
  if (zone.empty()) return true;
  return zone.starts_with(kZoneMark) && zone.size() > kZoneMark.size() &&
         kZoneBytes.holdsAll(zone.substr(kZoneMark.size()));
}

bool isPort(std::string_view text) {
  return text.empty() || (text.front() == ':' && kPortBytes.holdsAll(text.substr(1)));
}

bool isHostWithPort(std::string_view text) {
  if (!text.starts_with('[')) {
    const auto [host, port] = splitAt(text, ":");
    return isEscaped(host, kAuthorityBytes) && isPort(port);
  }
  const auto [address, rest] = splitAt(text.substr(1), "]");
  return isBracketedAddress(address) && !rest.empty() && isPort(rest.substr(1));
}

bool isAuthority(std::string_view text) {
  const std::size_t at = text.find('@');
  if (at == std::string_view::npos) return isHostWithPort(text);
  return isEscaped(text.substr(0, at), kAuthorityBytes) && isHostWithPort(text.substr(at + 1));
}

/// Whether it is a path with query and fragment.
bool isTail(std::string_view text) {
  const auto [beforeFragment, fragment] = splitAt(text, "#");
  return isEscaped(beforeFragment, kTailBytes) &&
         (fragment.empty() || isEscaped(fragment.substr(1), kTailBytes));
}

}  // namespace

UrlParts splitUrl(std::string_view text) {
  UrlParts parts;
  std::string_view rest = text;
  const std::size_t mark = rest.find_first_of(":/?#");
  if (mark != std::string_view::npos && rest[mark] == ':') {
    parts.scheme = rest.substr(0, mark);
    rest.remove_prefix(mark + 1);
  }
  if (rest.starts_with("//")) {
    std::tie(parts.authority, rest) = splitAt(rest.substr(2), "/?#");
  }
  parts.front = text.substr(0, text.size() - rest.size());
  std::tie(parts.path, parts.tail) = splitAt(rest, "?#");
  return parts;
}

std::string_view hostIn(std::string_view authority) {
  authority.remove_prefix(authority.rfind('@') + 1);
  if (authority.starts_with('[')) return splitAt(authority.substr(1), "]").first;
  return splitAt(authority, ":").first;
}

bool isUrl(std::string_view text) {
  const UrlParts parts = splitUrl(text);
  return !text.empty() && (!parts.scheme || isScheme(*parts.scheme)) &&
         (!parts.authority || isAuthority(*parts.authority)) &&
         isTail(text.substr(parts.front.size()));
}

std::string escapedTail(std::string_view text) {
  const auto [beforeFragment, fragment] = splitAt(text, "#");
  std::string result = escapedKeepingEscapes(beforeFragment, kTailBytes);
  if (fragment.empty()) return result;
  return result + "#" + escapedKeepingEscapes(fragment.substr(1), kTailBytes);
}

}  // namespace launcher
