#include "net/linux/links/Traits.h"

#include <unicode/uchar.h>

#include <array>

#include "base/CodePoints.h"
#include "base/UrlSyntax.h"

namespace launcher::links {
namespace {

using Traits = std::uint8_t;
using AsciiTraits = std::array<Traits, 128>;

constexpr void give(AsciiTraits& table, std::string_view characters, Traits traits) {
  for (const char character : characters) table[static_cast<unsigned char>(character)] |= traits;
}

constexpr AsciiTraits asciiTraits() {
  AsciiTraits table{};
  for (const std::string_view alphanumeric : {kLetters, kDigits}) {
    give(table, alphanumeric, inScheme | inWord | inLabel | inUserInfo | inTail | atEnd);
  }
  give(table, "+-.", inScheme);
  give(table, "+-._", inWord);
  give(table, "-_", inLabel);
  for (const std::string_view marks : {kUnreservedMarks, kSubDelimiters}) {
    give(table, marks, inUserInfo | inTail);
  }
  give(table, ":%", inUserInfo | inTail);
  give(table, "@/?#[]", inTail);
  give(table, "-_~$&)*+=%@/#]", atEnd);
  return table;
}

constexpr AsciiTraits kAsciiTraits = asciiTraits();

constexpr std::uint32_t kLetterLike =
    U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK | U_GC_SO_MASK | U_GC_SK_MASK;
constexpr std::uint32_t kOtherSymbols = U_GC_SM_MASK | U_GC_SC_MASK | U_GC_CO_MASK | U_GC_CN_MASK;

/// Letters, marks, digits and emoji may stand wherever ASCII letters may; other symbols anywhere in
/// the tail; punctuation only inside the tail. Blanks, controls and invisible characters end a
/// link.
Traits traitsBeyondAscii(char32_t point) {
  constexpr char32_t kNonJoiner = 0x200C;
  constexpr char32_t kJoiner = 0x200D;
  constexpr char32_t kObject = 0xFFFC;
  constexpr char32_t kReplacement = 0xFFFD;
  if (point == kObject || point == kReplacement) return 0;

  const auto character = static_cast<UChar32>(point);
  const std::uint32_t category = U_GET_GC_MASK(character);
  const bool joins = point == kNonJoiner || point == kJoiner;
  if (joins || (category & kLetterLike) != 0) {
    return inWord | inLabel | inUserInfo | inTail | atEnd;
  }
  if (U_IS_UNICODE_NONCHAR(character)) return 0;
  if ((category & kOtherSymbols) != 0) return inTail | atEnd;
  if ((category & U_GC_P_MASK) != 0) return inTail;
  return 0;
}

}  // namespace

bool has(char32_t point, Trait trait) {
  const Traits traits =
      point < kAsciiTraits.size() ? kAsciiTraits[point] : traitsBeyondAscii(point);
  return (traits & trait) != 0;
}

std::size_t skip(std::u16string_view text, std::size_t at, Trait trait) {
  while (at < text.size()) {
    if (text[at] < kAsciiTraits.size()) {
      if ((kAsciiTraits[text[at]] & trait) == 0) break;
      ++at;
    } else {
      const CodePoint point = firstCodePoint(text.substr(at));
      if (!point.value || !has(*point.value, trait)) break;
      at += point.length;
    }
  }
  return at;
}

std::size_t skipToBlank(std::u16string_view text, std::size_t at) {
  // Every blank and control is a single unit.
  const auto isBlank = [](char16_t unit) { return u_isUWhiteSpace(unit) || u_iscntrl(unit); };
  while (at < text.size() && !isBlank(text[at])) ++at;
  return at;
}

}  // namespace launcher::links
