// Conversions lose nothing. ASCII, which is handled apart, gets the same answer as any other text.
#include <unicode/unistr.h>
#include <unicode/unorm.h>

#include <string>

#include "base/PercentEncoding.h"
#include "base/Unicode.h"
#include "tests/fuzz/Fuzzing.h"

using namespace launcher;
using namespace launcher::fuzzing;

static const std::string kAccented = "\u00e9";

static void checkPlain(const std::string& text) {
  // A blank keeps the accented letter a character of its own.
  require(characterCount(text + ' ') + 1 == characterCount(text + ' ' + kAccented),
          "ASCII is counted as any text is");
  require(canonicallyDecomposed(text) == text, "ASCII decomposes to itself");
}

static void checkPrefix(const std::string& text, const std::string& prefix) {
  require(hasCanonicalPrefix(prefix + text, prefix) || !isAscii(text + prefix),
          "a text begins with what it was made of");
  require(!hasCanonicalPrefix(text, prefix) || !hasCanonicalPrefix(prefix, text) ||
              canonicallyEqual(text, prefix),
          "two texts that begin with each other are equal");
}

static icu::UnicodeString unitsOf(const std::string& text) {
  return icu::UnicodeString::fromUTF8(text);
}

/// Compares with a library that knows all of Unicode. The library repairs and compares texts in its
/// own way.
static void checkLibrary(const std::string& text, const std::string& other) {
  const std::u16string units = utf16(text);
  require(icu::UnicodeString(units.data(), static_cast<int>(units.size())) == unitsOf(text),
          "UTF-16 is what the library makes of it");
  UErrorCode error = U_ZERO_ERROR;
  const auto a = unitsOf(text);
  const auto b = unitsOf(other);
  const int order = unorm_compare(a.getBuffer(), a.length(), b.getBuffer(), b.length(), 0, &error);
  require(canonicallyEqual(text, other) == (order == 0), "the library finds the same texts equal");
}

FUZZ_TARGET(text) {
  const std::string repaired = repairedUtf8(text);
  require(isUtf8(repaired), "repaired text is well-formed");
  require(isUtf8(text) == (repaired == text), "only ill-formed text is repaired");
  require(utf8(utf16(text)) == repaired, "UTF-16 and back loses nothing");
  require(characterCount(text) <= utf16(text).size(), "a character takes a unit or more");
  require(canonicallyEqual(text, canonicallyDecomposed(text)), "a decomposition is equivalent");
  require(unescaped(escaped(text, {"abc"})) == text, "escapes and back lose nothing");
  if (isAscii(text)) checkPlain(repaired);
  const std::size_t half = text.size() / 2;
  checkPrefix(repairedUtf8(text.substr(0, half)), repairedUtf8(text.substr(half)));
  checkLibrary(std::string(text.substr(0, half)), std::string(text.substr(half)));
}
