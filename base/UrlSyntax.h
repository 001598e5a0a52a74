#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/PercentEncoding.h"

/// How a URL is written (RFC 3986): the bytes that its parts may hold, and the parts of a text. No
/// state; any thread.
namespace launcher {

inline constexpr std::string_view kUnreservedMarks = "-._~";
inline constexpr std::string_view kSubDelimiters = "!$&'()*+,;=";

/// Beside these bytes a part may hold escapes, a scheme excepted.
inline constexpr ByteSet kSchemeBytes{kLetters, kDigits, "+-."};
inline constexpr ByteSet kUserInfoBytes{kLetters, kDigits, kUnreservedMarks, kSubDelimiters, ":"};
inline constexpr ByteSet kHostNameBytes{kLetters, kDigits, kUnreservedMarks, kSubDelimiters};
inline constexpr ByteSet kPathBytes{kLetters, kDigits, kUnreservedMarks, kSubDelimiters, ":@/"};
inline constexpr ByteSet kQueryBytes{kLetters, kDigits, kUnreservedMarks, kSubDelimiters, ":@/?"};

/// The parts of a text, as far as it has them, without the marks between them.
struct UrlParts {
  std::optional<std::string_view> scheme;
  std::optional<std::string_view> authority;  ///< credentials, host and port
  std::string_view path;
  std::string_view tail;  ///< query and fragment, with their marks
};

/// Splits a text, be it a URL or not.
///
///     "https://u@h:80/a?b#c"   -> scheme "https", authority "u@h:80", path "/a", tail "?b#c"
///     "mailto:a@b"             -> scheme "mailto", path "a@b"
UrlParts splitUrl(std::string_view text);

/// The host that an authority names, escapes and all, an IPv6 address without its brackets.
///
///     "u:p@[::1]:80"   -> "::1"
std::string_view hostIn(std::string_view authority);

/// Whether a text is a URL, also a relative one, just as it stands.
bool isUrl(std::string_view text);

/// A path, a query and a fragment with every byte escaped that none of them holds. Escapes stay.
///
///     "/a b%20c?d=[e]#f#g"   -> "/a%20b%20c?d=%5Be%5D#f%23g"
std::string escapedTail(std::string_view text);

}  // namespace launcher
