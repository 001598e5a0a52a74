#include <algorithm>
#include <optional>

#include "base/Text.h"

namespace launcher {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// A code point and the bytes or units that it was read from. An ill-formed sequence has no point.
struct Step {
  std::optional<char32_t> point;
  std::size_t length = 1;
};

/// What may follow a lead byte: the number of further bytes, and the values of the first of them.
/// The narrower ranges keep out overlong forms, surrogates and what lies above U+10FFFF.
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

/// Reads the code point at the start of `rest`, which is not empty. An ill-formed sequence is as
/// long as the part of it that could have begun a well-formed one, as Unicode recommends.
Step stepUtf8(std::string_view rest) {
  const auto byteAt = [rest](std::size_t at) { return static_cast<unsigned char>(rest[at]); };
  std::optional<Lead> lead = leadOf(byteAt(0));
  if (!lead) return {};

  char32_t point = lead->following == 0 ? byteAt(0) : byteAt(0) & (0x3FU >> lead->following);
  for (std::size_t at = 1; at <= lead->following; ++at) {
    if (at == rest.size() || byteAt(at) < lead->lowest || byteAt(at) > lead->highest) {
      return {std::nullopt, at};
    }
    point = point << 6U | (byteAt(at) & 0x3FU);
    lead->lowest = 0x80;
    lead->highest = 0xBF;
  }
  return {point, lead->following + 1};
}

bool isLeadSurrogate(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isTrailSurrogate(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

/// Reads the code point at the start of `rest`, which is not empty.
Step stepUtf16(std::u16string_view rest) {
  if (isLeadSurrogate(rest[0]) && rest.size() > 1 && isTrailSurrogate(rest[1])) {
    return {0x10000U + ((rest[0] & 0x3FFU) << 10U | (rest[1] & 0x3FFU)), 2};
  }
  if (isLeadSurrogate(rest[0]) || isTrailSurrogate(rest[0])) return {};
  return {rest[0], 1};
}

void append(std::string& text, char32_t point) {
  const auto add = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  if (point < 0x80) {
    add(point);
  } else if (point < 0x800) {
    add(0xC0U | point >> 6U);
    add(0x80U | (point & 0x3FU));
  } else if (point < 0x10000) {
    add(0xE0U | point >> 12U);
    add(0x80U | (point >> 6U & 0x3FU));
    add(0x80U | (point & 0x3FU));
  } else {
    add(0xF0U | point >> 18U);
    add(0x80U | (point >> 12U & 0x3FU));
    add(0x80U | (point >> 6U & 0x3FU));
    add(0x80U | (point & 0x3FU));
  }
}

void append(std::u16string& units, char32_t point) {
  if (point < 0x10000) {
    units.push_back(static_cast<char16_t>(point));
  } else {
    units.push_back(static_cast<char16_t>(0xD800U + ((point - 0x10000U) >> 10U)));
    units.push_back(static_cast<char16_t>(0xDC00U + (point & 0x3FFU)));
  }
}

}  // namespace

std::u16string utf16(std::string_view text) {
  if (isAscii(text)) return {text.begin(), text.end()};
  std::u16string units;
  units.reserve(text.size());
  while (!text.empty()) {
    const Step step = stepUtf8(text);
    append(units, step.point.value_or(kReplacement));
    text.remove_prefix(step.length);
  }
  return units;
}

std::string utf8(std::u16string_view units) {
  std::string text;
  text.reserve(units.size());
  while (!units.empty()) {
    const Step step = stepUtf16(units);
    append(text, step.point.value_or(kReplacement));
    units.remove_prefix(step.length);
  }
  return text;
}

std::string utf8(char32_t point) {
  std::string text;
  append(text, point);
  return text;
}

std::string repairedUtf8(std::string_view bytes) {
  if (isUtf8(bytes)) return std::string(bytes);
  return utf8(utf16(bytes));
}

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const Step step = stepUtf8(bytes);
    if (!step.point) return false;
    bytes.remove_prefix(step.length);
  }
  return true;
}

}  // namespace launcher
