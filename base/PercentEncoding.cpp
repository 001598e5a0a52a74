#include "base/PercentEncoding.h"

namespace launcher {
namespace {

constexpr ByteSet kHexBytes{kHexDigits};

unsigned hexValue(char digit) {
  const auto place = static_cast<unsigned>(kHexDigits.find(digit));
  return place < 16 ? place : place - 6;
}

}  // namespace

bool beginsWithEscape(std::string_view text) {
  return text.size() >= 3 && text[0] == '%' && kHexBytes.holds(text[1]) && kHexBytes.holds(text[2]);
}

std::string escaped(std::string_view text, const ByteSet& kept) {
  std::string result;
  result.reserve(text.size());
  for (const char byte : text) {
    if (kept.holds(byte)) {
      result.push_back(byte);
    } else {
      const auto value = static_cast<unsigned char>(byte);
      result.append({'%', kHexDigits[value >> 4U], kHexDigits[value & 15U]});
    }
  }
  return result;
}

std::string escapedKeepingEscapes(std::string_view text, const ByteSet& kept) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const bool escape = beginsWithEscape(text);
    const std::string_view piece = text.substr(0, escape ? 3 : 1);
    result += escape ? std::string(piece) : escaped(piece, kept);
    text.remove_prefix(piece.size());
  }
  return result;
}

std::string unescaped(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    const bool escape = beginsWithEscape(text);
    bytes.push_back(escape ? static_cast<char>(hexValue(text[1]) << 4U | hexValue(text[2]))
                           : text[0]);
    text.remove_prefix(escape ? 3 : 1);
  }
  return bytes;
}

}  // namespace launcher
