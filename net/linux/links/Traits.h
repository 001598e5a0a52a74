#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// The places in a link where a character may stand. No state; any thread.
namespace launcher::links {

enum Trait : std::uint8_t {
  inScheme = 1U << 0U,    // "https"
  inWord = 1U << 1U,      // what a scheme, a bare domain or a mail address is made of
  inLabel = 1U << 2U,     // between the dots of a host name
  inUserInfo = 1U << 3U,  // before the "@" of an authority
  inTail = 1U << 4U,      // in path, query and fragment
  atEnd = 1U << 5U,       // at the end of a tail: "see https://h/a." ends before the full stop
};

/// Whether a code point has a trait.
bool has(char32_t point, Trait trait);

/// The end of the run of characters with a trait. Lone surrogates have no trait.
///
///     skip(u"a.b/c", 0, inWord)   -> 3
std::size_t skip(std::u16string_view text, std::size_t at, Trait trait);

/// The next blank or control character, or the text's end.
std::size_t skipToBlank(std::u16string_view text, std::size_t at);

inline bool isAsciiLetter(char16_t unit) {
  return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

/// Whether `unit` is at a place, which may lie beyond the text.
inline bool unitIs(std::u16string_view text, std::size_t at, char16_t unit) {
  return at < text.size() && text[at] == unit;
}

}  // namespace launcher::links
