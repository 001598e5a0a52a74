#include <algorithm>

#include "base/CodePoints.h"
#include "base/Unicode.h"

namespace launcher {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

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
    const CodePoint point = firstCodePoint(text);
    append(units, point.value.value_or(kReplacement));
    text.remove_prefix(point.length);
  }
  return units;
}

std::string utf8(std::u16string_view units) {
  if (isAscii(units)) return {units.begin(), units.end()};
  std::string text;
  text.reserve(units.size());
  while (!units.empty()) {
    const CodePoint point = firstCodePoint(units);
    append(text, point.value.value_or(kReplacement));
    units.remove_prefix(point.length);
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

bool isAscii(std::u16string_view units) {
  return std::all_of(units.begin(), units.end(), [](char16_t unit) { return unit < 0x80; });
}

std::string asciiLowerCase(std::string_view text) {
  std::string lower(text);
  for (char& byte : lower) {
    if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte - 'A' + 'a');
  }
  return lower;
}

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const CodePoint point = firstCodePoint(bytes);
    if (!point.value) return false;
    bytes.remove_prefix(point.length);
  }
  return true;
}

}  // namespace launcher
