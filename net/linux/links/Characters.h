#pragma once

#include <unicode/uchar.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/UrlSyntax.h"

/// The characters that may stand in each place of a link. No state; any thread.
namespace launcher::links {

/// Some characters of ASCII, and all others of some general categories.
struct CharacterSet {
  ByteSet ascii;
  std::uint32_t categories = 0;
};

/// Letters, marks, digits and emoji may stand wherever ASCII letters may; other symbols anywhere in
/// the tail; punctuation only inside the tail. Blanks, controls and invisible characters end a
/// link.
inline constexpr std::uint32_t kLetterLike =
    U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK | U_GC_SO_MASK | U_GC_SK_MASK;
inline constexpr std::uint32_t kSymbols =
    kLetterLike | U_GC_SM_MASK | U_GC_SC_MASK | U_GC_CO_MASK | U_GC_CN_MASK;

inline constexpr CharacterSet kInScheme{kSchemeBytes};
/// What a scheme, a bare domain or a mail address is made of.
inline constexpr CharacterSet kInWord{{kLetters, kDigits, "+-._"}, kLetterLike};
/// Between the dots of a host name.
inline constexpr CharacterSet kInLabel{{kLetters, kDigits, "-_"}, kLetterLike};
/// Before the host, with the "@" at the end.
inline constexpr CharacterSet kInCredentials{
    {kLetters, kDigits, kUnreservedMarks, kSubDelimiters, ":%@"}, kLetterLike};
inline constexpr CharacterSet kInPort{{kDigits}};
/// In path, query and fragment.
inline constexpr CharacterSet kInTail{
    {kLetters, kDigits, kUnreservedMarks, kSubDelimiters, ":%@/?#[]"}, kSymbols | U_GC_P_MASK};
/// At the end of a tail: "see https://h/a." ends before the full stop.
inline constexpr CharacterSet kAtEnd{{kLetters, kDigits, "-_~$&)*+=%@/#]"}, kSymbols};

/// Takes the code point at a place, and moves the place behind it. A lone surrogate is one.
UChar32 takeCodePoint(std::u16string_view text, std::size_t& at);

bool holds(const CharacterSet& set, UChar32 point);

/// The end of the run of characters from a set.
///
///     skip(u"a.b/c", 0, kInWord)   -> 3
std::size_t skip(std::u16string_view text, std::size_t at, const CharacterSet& set);

/// Whether `unit` is at a place, which may lie beyond the text.
inline bool unitIs(std::u16string_view text, std::size_t at, char16_t unit) {
  return at < text.size() && text[at] == unit;
}

}  // namespace launcher::links
