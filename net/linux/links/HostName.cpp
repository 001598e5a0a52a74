#include "net/linux/links/HostName.h"

#include <unicode/idna.h>

#include <algorithm>

#include "base/PercentEncoding.h"
#include "base/Unicode.h"

namespace launcher::links {
namespace {

constexpr std::size_t kLongestHost = 253;
constexpr std::size_t kLongestLabel = 63;
constexpr ByteSet kDomainBytes{kLetters, kDigits, "-."};
constexpr ByteSet kHostBytes{kLetters, kDigits, "-._"};

/// Made once, never changed, and shared by all threads. Null if ICU has no data.
const icu::IDNA* punycode() {
  static const icu::IDNA* const converter = [] {
    UErrorCode status = U_ZERO_ERROR;
    return icu::IDNA::createUTS46Instance(
        UIDNA_CHECK_BIDI | UIDNA_CHECK_CONTEXTJ | UIDNA_NONTRANSITIONAL_TO_ASCII, status);
  }();
  return converter;
}

/// Absent if the name is too long. A symbol may turn into separators, so check the result too.
std::optional<std::string> punycodeOf(std::u16string_view host) {
  if (host.size() > kLongestHost || punycode() == nullptr) return std::nullopt;
  const icu::UnicodeString name(false, host.data(), static_cast<std::int32_t>(host.size()));
  icu::UnicodeString converted;
  icu::IDNAInfo info;
  UErrorCode status = U_ZERO_ERROR;
  punycode()->nameToASCII(name, converted, info, status);
  std::string ascii;
  converted.toUTF8String(ascii);
  if (U_FAILURE(status) || info.hasErrors() || !kHostBytes.holdsAll(ascii)) return std::nullopt;
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

}  // namespace

std::optional<std::string> asciiHost(std::u16string_view host) {
  return isAscii(host) ? std::string(host.begin(), host.end()) : punycodeOf(host);
}

bool isBareDomain(std::u16string_view text) {
  if (text.size() > kLongestHost || text.find(u'.') == std::u16string_view::npos) return false;
  const std::optional<std::string> host = asciiHost(text);
  if (!host || !kDomainBytes.holdsAll(*host) || !consistsOfLabels(*host)) return false;
  const std::string domain = asciiLowerCase(*host);
  const std::size_t last = domain.rfind('.') + 1;
  const bool isThirdOfWww = domain.starts_with("www.") && domain.find('.', 4) < last;
  return isThirdOfWww || std::ranges::binary_search(kTopLevelDomains, domain.substr(last));
}

}  // namespace launcher::links
