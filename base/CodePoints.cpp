#include "base/CodePoints.h"

namespace launcher {
namespace {

/// What may follow a lead byte: the number of further bytes, and the range of the first of them.
/// The narrower ranges exclude overlong forms, surrogates and values above U+10FFFF.
struct Lead {
  std::size_t following = 0;
  unsigned char lowest = 0x80;
  unsigned char highest = 0xBF;
};

std::optional<Lead> leadOf(unsigned char byte) {
  if (byte < 0x80) return Lead{0};
  if (byte < 0xC2) return std::nullopt;
  if (byte < 0xE0) return Lead{1};
  if (byte == 0xE0) return Lead{2, 0xA0, 0xBF};
  if (byte == 0xED) return Lead{2, 0x80, 0x9F};
  if (byte < 0xF0) return Lead{2};
  if (byte == 0xF0) return Lead{3, 0x90, 0xBF};
  if (byte < 0xF4) return Lead{3};
  if (byte == 0xF4) return Lead{3, 0x80, 0x8F};
  return std::nullopt;
}

bool isLeadSurrogate(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isTrailSurrogate(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

}  // namespace

CodePoint firstCodePoint(std::string_view utf8) {
  const auto byteAt = [utf8](std::size_t at) { return static_cast<unsigned char>(utf8[at]); };
  std::optional<Lead> lead = leadOf(byteAt(0));
  if (!lead) return {};

  char32_t point = lead->following == 0 ? byteAt(0) : byteAt(0) & (0x3FU >> lead->following);
  for (std::size_t at = 1; at <= lead->following; ++at) {
    if (at == utf8.size() || byteAt(at) < lead->lowest || byteAt(at) > lead->highest) {
      return {std::nullopt, at};
    }
    point = point << 6U | (byteAt(at) & 0x3FU);
    lead->lowest = 0x80;
    lead->highest = 0xBF;
  }
  return {point, lead->following + 1};
}

CodePoint firstCodePoint(std::u16string_view utf16) {
  if (isLeadSurrogate(utf16[0]) && utf16.size() > 1 && isTrailSurrogate(utf16[1])) {
    return {0x10000U + ((utf16[0] & 0x3FFU) << 10U | (utf16[1] & 0x3FFU)), 2};
  }
  if (isLeadSurrogate(utf16[0]) || isTrailSurrogate(utf16[0])) return {};
  return {utf16[0], 1};
}

}  // namespace launcher
