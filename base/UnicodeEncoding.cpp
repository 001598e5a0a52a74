#include <algorithm>
#include <array>

#include "base/Unicode.h"

namespace launcher {
namespace {

/// A code point and its length in bytes or units. An ill-formed sequence becomes U+FFFD; its length
/// is that of the part that could have begun a well-formed one.
struct CodePoint {
  char32_t value = 0xFFFD;
  std::size_t length = 1;
};

/// What may follow a lead byte: the number of further bytes, and the range of the first of them.
/// The narrower ranges exclude overlong forms, surrogates and values above U+10FFFF.
struct Lead {
  std::size_t following = 0;
  char32_t lowest = 0x80;
  char32_t highest = 0xBF;
};

/// A byte that leads no sequence has nothing that may follow it.
Lead leadOf(char32_t byte) {
  if (byte < 0xC2 || byte > 0xF4) return {};
  if (byte < 0xE0) return {1};
  if (byte < 0xF0) return {2, byte == 0xE0 ? 0xA0U : 0x80U, byte == 0xED ? 0x9FU : 0xBFU};
  return {3, byte == 0xF0 ? 0x90U : 0x80U, byte == 0xF4 ? 0x8FU : 0xBFU};
}

CodePoint firstCodePoint(std::string_view utf8) {
  const auto byteAt = [utf8](std::size_t at) { return static_cast<unsigned char>(utf8[at]); };
  if (byteAt(0) < 0x80) return {byteAt(0)};
  Lead lead = leadOf(byteAt(0));
  if (lead.following == 0) return {};

  char32_t point = byteAt(0) & (0x3FU >> lead.following);
  for (std::size_t at = 1; at <= lead.following; ++at) {
    if (at == utf8.size() || byteAt(at) < lead.lowest || byteAt(at) > lead.highest) {
      return {.length = at};
    }
    point = point << 6U | (byteAt(at) & 0x3FU);
    lead = {lead.following};
  }
  return {point, lead.following + 1};
}

bool isLeadSurrogate(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isTrailSurrogate(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

CodePoint firstCodePoint(std::u16string_view utf16) {
  if (isLeadSurrogate(utf16[0]) && utf16.size() > 1 && isTrailSurrogate(utf16[1])) {
    return {0x10000U + ((utf16[0] & 0x3FFU) << 10U | (utf16[1] & 0x3FFU)), 2};
  }
  if (isLeadSurrogate(utf16[0]) || isTrailSurrogate(utf16[0])) return {};
  return {utf16[0]};
}

/// The lead byte tells the number of further bytes, which hold six bits each. `point` must be no
/// surrogate and at most U+10FFFF.
void append(std::string& text, char32_t point) {
  constexpr std::array<char32_t, 4> kLimits{0x80, 0x800, 0x10000, 0x110000};
  constexpr std::array<char32_t, 4> kLeads{0x00, 0xC0, 0xE0, 0xF0};
  const auto add = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  std::size_t following = 0;
  while (point >= kLimits[following]) ++following;
  add(kLeads[following] | point >> 6 * following);
  while (following-- > 0) add(0x80U | (point >> 6 * following & 0x3FU));
}

void append(std::u16string& units, char32_t point) {
  if (point < 0x10000) {
    units.push_back(static_cast<char16_t>(point));
  } else {
    units.push_back(static_cast<char16_t>(0xD800U + ((point - 0x10000U) >> 10U)));
    units.push_back(static_cast<char16_t>(0xDC00U + (point & 0x3FFU)));
  }
}

template <class Text, class View>
Text converted(View units) {
  if (isAscii(units)) return {units.begin(), units.end()};
  Text text;
  text.reserve(units.size());
  while (!units.empty()) {
    const CodePoint point = firstCodePoint(units);
    append(text, point.value);
    units.remove_prefix(point.length);
  }
  return text;
}

template <class View>
bool isBelow0x80(View units) {
  return std::all_of(units.begin(), units.end(),
                     [](auto unit) { return unit >= 0 && unit < 0x80; });
}

}  // namespace

std::u16string utf16(std::string_view text) { return converted<std::u16string>(text); }

std::string utf8(std::u16string_view units) { return converted<std::string>(units); }

std::string repairedUtf8(std::string_view bytes) { return utf8(utf16(bytes)); }

bool isUtf8(std::string_view bytes) { return repairedUtf8(bytes) == bytes; }

bool isAscii(std::string_view text) { return isBelow0x80(text); }

bool isAscii(std::u16string_view units) { return isBelow0x80(units); }

std::string asciiLowerCase(std::string_view text) {
  std::string lower(text);
  for (char& byte : lower) {
    if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte - 'A' + 'a');
  }
  return lower;
}

}  // namespace launcher
