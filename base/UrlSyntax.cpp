#include "base/UrlSyntax.h"

#include <algorithm>
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

std::string_view withoutFirst(std::string_view text) {
  return text.substr(std::min<std::size_t>(text.size(), 1));
}

bool consistsOf(std::string_view text, const ByteSet& bytes) {
  return std::all_of(text.begin(), text.end(), [&](char byte) { return bytes.holds(byte); });
}

bool consistsOfEscapesAnd(std::string_view text, const ByteSet& bytes) {
  while (!text.empty()) {
    const bool escape = beginsWithEscape(text);
    if (!escape && !bytes.holds(text.front())) return false;
    text.remove_prefix(escape ? 3 : 1);
  }
  return true;
}

bool isScheme(std::string_view text) {
  return !text.empty() && kLetters.find(text.front()) != std::string_view::npos &&
         consistsOf(text, kSchemeBytes);
}

/// Whether it is an IPv6 address, with or without a zone: "fe80::1%25eth0".
bool isBracketedAddress(std::string_view text) {
  const std::size_t mark = text.find(kZoneMark);
  const std::string_view address = text.substr(0, mark);
  if (address.empty() || !consistsOf(address, kAddressBytes)) return false;
  if (mark == std::string_view::npos) return true;
  const std::string_view zone = text.substr(mark + kZoneMark.size());
  return !zone.empty() && consistsOf(zone, kZoneBytes);
}

bool isPort(std::string_view text) {
  return text.empty() || (text.front() == ':' && consistsOf(text.substr(1), kPortBytes));
}

bool isHostWithPort(std::string_view text) {
  if (!text.starts_with('[')) {
    const auto [host, port] = splitAt(text, ":");
    return consistsOfEscapesAnd(host, kHostNameBytes) && isPort(port);
  }
  const auto [address, rest] = splitAt(text.substr(1), "]");
  return isBracketedAddress(address) && !rest.empty() && isPort(rest.substr(1));
}

bool isAuthority(std::string_view text) {
  const std::size_t at = text.find('@');
  if (at == std::string_view::npos) return isHostWithPort(text);
  return consistsOfEscapesAnd(text.substr(0, at), kUserInfoBytes) &&
         isHostWithPort(text.substr(at + 1));
}

bool isTail(std::string_view text) {
  const auto [query, fragment] = splitAt(text, "#");
  return consistsOfEscapesAnd(query, kQueryBytes) &&
         consistsOfEscapesAnd(withoutFirst(fragment), kQueryBytes);
}

}  // namespace

UrlParts splitUrl(std::string_view text) {
  UrlParts parts;
  const std::size_t mark = text.find_first_of(":/?#");
  if (mark != std::string_view::npos && text[mark] == ':') {
    parts.scheme = text.substr(0, mark);
    text.remove_prefix(mark + 1);
  }
  if (text.starts_with("//")) {
    std::tie(parts.authority, text) = splitAt(text.substr(2), "/?#");
  }
  std::tie(parts.path, parts.tail) = splitAt(text, "?#");
  return parts;
}

std::string_view hostIn(std::string_view authority) {
  if (const std::size_t at = authority.rfind('@'); at != std::string_view::npos) {
    authority.remove_prefix(at + 1);
  }
  if (authority.starts_with('[')) return splitAt(authority.substr(1), "]").first;
  return splitAt(authority, ":").first;
}

bool isUrl(std::string_view text) {
  const UrlParts parts = splitUrl(text);
  return !text.empty() && (!parts.scheme || isScheme(*parts.scheme)) &&
         (!parts.authority || isAuthority(*parts.authority)) &&
         consistsOfEscapesAnd(parts.path, kPathBytes) && isTail(parts.tail);
}

std::string escapedTail(std::string_view text) {
  const auto [beforeFragment, fragment] = splitAt(text, "#");
  std::string result = escapedKeepingEscapes(beforeFragment, kQueryBytes);
  if (fragment.empty()) return result;
  return result + "#" + escapedKeepingEscapes(fragment.substr(1), kQueryBytes);
}

}  // namespace launcher
