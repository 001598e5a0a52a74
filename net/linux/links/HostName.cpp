#include "net/linux/links/HostName.h"

#include <unicode/uidna.h>

#include <algorithm>
#include <array>
#include <cstdint>

#include "base/PercentEncoding.h"
#include "base/Unicode.h"

namespace launcher::links {
namespace {

constexpr std::size_t kLongestHost = 253;
constexpr std::size_t kLongestLabel = 63;
constexpr ByteSet kDomainBytes{kLetters, kDigits, "-."};
constexpr ByteSet kHostBytes{kLetters, kDigits, "-._"};

bool isAsciiText(std::u16string_view text) {
  return std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 0x80; });
}

bool consistsOf(std::string_view text, const ByteSet& bytes) {
  return std::all_of(text.begin(), text.end(), [&](char byte) { return bytes.holds(byte); });
}

/// Made once, never changed, and shared by all threads.
const UIDNA* punycode() {
  static const UIDNA* const converter = [] {
    UErrorCode status = U_ZERO_ERROR;
    return uidna_openUTS46(UIDNA_CHECK_BIDI | UIDNA_CHECK_CONTEXTJ | UIDNA_NONTRANSITIONAL_TO_ASCII,
                           &status);
  }();
  return converter;
}

/// Absent if the name is too long. A symbol may turn into separators, so check the result too.
std::optional<std::string> punycodeOf(std::u16string_view host) {
  if (host.size() > kLongestHost || punycode() == nullptr) return std::nullopt;
  std::array<char16_t, kLongestHost + 1> converted{};
  UIDNAInfo info = UIDNA_INFO_INITIALIZER;
  UErrorCode status = U_ZERO_ERROR;
  const std::int32_t length = uidna_nameToASCII(
      punycode(), host.data(), static_cast<std::int32_t>(host.size()), converted.data(),
      static_cast<std::int32_t>(converted.size()), &info, &status);
  if (U_FAILURE(status) || info.errors != 0) return std::nullopt;

  std::string ascii(converted.begin(), converted.begin() + length);
  if (!consistsOf(ascii, kHostBytes)) return std::nullopt;
  return ascii;
}

bool isLabel(std::string_view label) {
  return !label.empty() && label.size() <= kLongestLabel && !label.starts_with('-') &&
         !label.ends_with('-');
}

bool consistsOfLabels(std::string_view domain) {
  while (true) {
    const std::size_t dot = domain.find('.');
    if (!isLabel(domain.substr(0, dot))) return false;
    if (dot == std::string_view::npos) return true;
    domain.remove_prefix(dot + 1);
  }
}

/// In alphabetical order.
constexpr std::string_view kTopLevelDomains[] = {
#include "TopLevelDomains.inc"
};

bool isTopLevelDomain(std::string_view label) {
  return std::ranges::binary_search(kTopLevelDomains, asciiLowerCase(label));
}

bool beginsWithWww(std::string_view domain) {
  const std::size_t dot = domain.find('.');
  return asciiLowerCase(domain.substr(0, dot)) == "www" &&
         domain.find('.', dot + 1) != std::string_view::npos;
}

}  // namespace

std::optional<std::string> asciiHost(std::u16string_view host) {
  if (isAsciiText(host)) return std::string(host.begin(), host.end());
  return punycodeOf(host);
}

bool isBareDomain(std::u16string_view text) {
  if (text.size() > kLongestHost || text.find(u'.') == std::u16string_view::npos) return false;
  const std::optional<std::string> domain = asciiHost(text);
  if (!domain || !consistsOf(*domain, kDomainBytes) || !consistsOfLabels(*domain)) return false;
  return isTopLevelDomain(domain->substr(domain->rfind('.') + 1)) || beginsWithWww(*domain);
}

}  // namespace launcher::links
