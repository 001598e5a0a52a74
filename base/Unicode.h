#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Questions about Unicode texts. Texts are UTF-8; an ill-formed sequence counts as U+FFFD.
/// A NUL is a character like any other. No state; any thread.
namespace launcher {

/// The number of user-perceived characters: extended grapheme clusters on Linux, composed character
/// sequences on macOS. They differ for controls with combining marks, prepended marks such as
/// U+0600, Thai and Lao SARA AM, and consonants that a virama joins. So a location with such a
/// letter may be valid on one system only, since this count limits the range that is searched for a
/// link: in "https://h/\u0e2a\u0e33" the link is as long as the text on macOS and exceeds the range
/// on Linux.
///
///     characterCount("abc")         -> 3
///     characterCount("e\u0301")     -> 1     a letter and its combining accent
///     characterCount("\r\n")        -> 1
std::size_t characterCount(std::string_view text);

/// The canonical decomposition (NFD).
std::string canonicallyDecomposed(std::string_view text);

/// The text in UTF-16, in the machine's byte order.
std::u16string utf16(std::string_view text);

/// The text in UTF-8; a lone surrogate becomes U+FFFD.
std::string utf8(std::u16string_view units);

/// The bytes with each ill-formed sequence replaced by U+FFFD.
std::string repairedUtf8(std::string_view bytes);

/// Whether all bytes or units are below 0x80.
bool isAscii(std::string_view text);
bool isAscii(std::u16string_view units);

/// The text with ASCII capitals in lower case; other characters stay.
std::string asciiLowerCase(std::string_view text);

/// Whether the bytes are well-formed UTF-8.
bool isUtf8(std::string_view bytes);

/// Whether two texts are canonically equivalent. Case counts.
///
///     canonicallyEqual("\u00e9", "e\u0301")   -> true
bool canonicallyEqual(std::string_view a, std::string_view b);

/// Whether the canonical decomposition of `text` begins with that of `prefix`. Case counts; the
/// empty prefix always passes.
bool hasCanonicalPrefix(std::string_view text, std::string_view prefix);

}  // namespace launcher
