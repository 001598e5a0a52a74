#pragma once

#include <optional>
#include <string_view>

#include "base/Url.h"
#include "net/LinkDetector.h"

/// What is accepted as a Vorx location and as an IP address. Texts are UTF-8. No state; any thread.
namespace launcher {

/// Whether the whole text is one link whose scheme begins with "http".
///
/// The length compared is the number of user-perceived characters, and the range searched is as
/// long: a text with characters of several UTF-16 units is cut short by the difference.
///
///     "https://server.example"     -> true
///     "https://server.example "    -> false
///     "ftp://server.example"       -> false
bool isValidURLAddress(std::string_view text, const LinkDetector& detector);

enum class InsecureScheme { refused, allowed };

/// The first link of the text, if its scheme is exactly "https", or "http" where allowed. Text
/// around the link is ignored, unlike above: one check gates the button, the other finds the host.
///
///     "go to http://server.example", allowed   -> http://server.example
///     "go to http://server.example", refused   -> absent
std::optional<Url> validURLAddress(std::string_view text, InsecureScheme insecure,
                                   const LinkDetector& detector);

/// Whether the text up to its first NUL is a numeric IPv6 or IPv4 address and nothing else.
///
///     "10.0.0.5", "::1", "::ffff:10.0.0.5"     -> true
///     "10.0.0", "10.0.0.5 ", "server", ""      -> false
bool validIPAddress(std::string_view text);

}  // namespace launcher
