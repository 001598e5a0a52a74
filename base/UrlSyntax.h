#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/PercentEncoding.h"

/// The syntax of URLs (RFC 3986): the parts of a URL and the bytes that they may hold. No state;
/// any thread.
namespace launcher {

inline constexpr std::string_view kUnreservedMarks = "-._~";
inline constexpr std::string_view kSubDelimiters = "!$&'()*+,;=";

/// Every part but the scheme may also hold escapes.
inline constexpr ByteSet kSchemeBytes{kLetters, kDigits, "+-."};
inline constexpr ByteSet kAuthorityBytes{kLetters, kDigits, kUnreservedMarks, kSubDelimiters, ":"};
inline constexpr ByteSet kTailBytes{kLetters, kDigits, kUnreservedMarks, kSubDelimiters, ":@/?"};

/// The parts that a text has, without the marks between them.
struct UrlParts {
  std::string_view front;  ///< everything before the path: scheme and authority, with their marks
  std::optional<std::string_view> scheme;
  std::optional<std::string_view> authority;  ///< credentials, host and port
  std::string_view path;
  std::string_view tail;  ///< query and fragment, with their marks
};

/// Splits any text, even one that is no URL.
///
///     "https://u@h:80/a?b#c"   -> scheme "https", authority "u@h:80", path "/a", tail "?b#c"
///     "mailto:a@b"             -> scheme "mailto", path "a@b"
UrlParts splitUrl(std::string_view text);

/// The host in an authority, with its escapes and without the brackets of an IPv6 address.
///
///     "u:p@[::1]:80"   -> "::1"
std::string_view hostIn(std::string_view authority);

/// Whether a text is a URL, also a relative one.
bool isUrl(std::string_view text);

/// Escapes the bytes that a path, query or fragment cannot hold. Keeps escapes.
///
///     "/a b%20c?d=[e]#f#g"   -> "/a%20b%20c?d=%5Be%5D#f%23g"
std::string escapedTail(std::string_view text);

}  // namespace launcher
