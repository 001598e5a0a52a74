#include "base/PercentEncoding.h"

#include <charconv>

namespace launcher {
namespace {

constexpr std::size_t kEscapeLength = 3;

void append(std::string& text, char byte, const ByteSet& kept) {
  if (kept.holds(byte)) {
    text.push_back(byte);
  } else {
    const auto value = static_cast<unsigned char>(byte);
    text.append({'%', kHexDigits[value >> 4U], kHexDigits[value & 15U]});
  }
}

}  // namespace

std::optional<char> leadingEscape(std::string_view text) {
  if (text.size() < kEscapeLength || text[0] != '%') return std::nullopt;
  unsigned value = 0;
  const char* end = text.data() + kEscapeLength;
  if (std::from_chars(text.data() + 1, end, value, 16).ptr != end) return std::nullopt;
  return static_cast<char>(value);
}

std::string escaped(std::string_view text, const ByteSet& kept) {
  std::string result;
  for (const char byte : text) append(result, byte, kept);
  return result;
}

std::string escapedKeepingEscapes(std::string_view text, const ByteSet& kept) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const bool escape = leadingEscape(text).has_value();
    if (escape) {
      result += text.substr(0, kEscapeLength);
    } else {
      append(result, text.front(), kept);
    }
    text.remove_prefix(escape ? kEscapeLength : 1);
  }
  return result;
}

bool isEscaped(std::string_view text, const ByteSet& kept) {
  while (!text.empty()) {
    const bool isKept = kept.holds(text.front());
    if (!isKept && !leadingEscape(text)) return false;
    text.remove_prefix(isKept ? 1 : kEscapeLength);
  }
  return true;
}

std::string unescaped(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    const std::optional<char> escape = leadingEscape(text);
    bytes.push_back(escape.value_or(text.front()));
    text.remove_prefix(escape ? kEscapeLength : 1);
  }
  return bytes;
}

}  // namespace launcher
