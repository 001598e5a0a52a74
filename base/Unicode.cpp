#include "base/Unicode.h"

#include "base/UnicodeRules.h"

namespace launcher {
namespace {

constexpr std::string_view kCarriageReturnLineFeed = "\r\n";

/// In ASCII only "\r\n" is a cluster of several characters.
std::size_t asciiCharacterCount(std::string_view text) {
  std::size_t count = text.size();
  for (std::size_t at = text.find(kCarriageReturnLineFeed); at != std::string_view::npos;
       at = text.find(kCarriageReturnLineFeed, at + kCarriageReturnLineFeed.size())) {
    --count;
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
  if (isAscii(a) && isAscii(b)) return a == b;
  return canonicallyDecomposed(a) == canonicallyDecomposed(b);
}

bool hasCanonicalPrefix(std::string_view text, std::string_view prefix) {
  if (isAscii(text) && isAscii(prefix)) return text.starts_with(prefix);
  return canonicallyDecomposed(text).starts_with(canonicallyDecomposed(prefix));
}

}  // namespace launcher
