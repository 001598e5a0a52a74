#include "base/Unicode.h"

#include "base/UnicodeRules.h"

namespace launcher {
namespace {

/// In ASCII only "\r\n" is a cluster of several characters.
std::size_t asciiCharacterCount(std::string_view text) {
  std::size_t count = text.size();
  for (std::size_t at = 1; at < text.size(); ++at) {
    if (text[at - 1] == '\r' && text[at] == '\n') --count;
  }
  return count;
}

}  // namespace

std::size_t characterCount(std::string_view text) {
  return isAscii(text) ? asciiCharacterCount(text) : graphemeClusterCount(utf16(text));
}

std::string canonicallyDecomposed(std::string_view text) {
  return isAscii(text) ? std::string(text) : utf8(decomposition(utf16(text)));
}

bool canonicallyEqual(std::string_view a, std::string_view b) {
  return canonicallyDecomposed(a) == canonicallyDecomposed(b);
}

bool hasCanonicalPrefix(std::string_view text, std::string_view prefix) {
  return canonicallyDecomposed(text).starts_with(canonicallyDecomposed(prefix));
}

}  // namespace launcher
