#pragma once

#include <optional>
#include <string_view>

#include "base/Url.h"
#include "net/LinkDetector.h"

/// The checks of the two typed texts: the Vorx location and the IP address. Texts are UTF-8. No
/// state; any thread.
namespace launcher {

/// Whether the whole text is one link whose scheme begins with "http".
///
/// The link must be as long in UTF-16 units as the text in user-perceived characters, and the
/// search covers only that many units. So a text that has characters of several units is searched
/// up to that length only.
///
///     "https://server.example"     -> true
///     "https://server.example "    -> false
///     "ftp://server.example"       -> false
bool isValidURLAddress(std::string_view text, const LinkDetector& detector);

enum class InsecureScheme { refused, allowed };

/// The first link of the text, if its scheme is exactly "https", or "http" if allowed. Ignores text
/// around the link, unlike `isValidURLAddress`: that one enables the button, this one finds the
/// host.
///
///     "go to http://server.example", allowed   -> http://server.example
///     "go to http://server.example", refused   -> absent
std::optional<Url> validURLAddress(std::string_view text, InsecureScheme insecure,
                                   const LinkDetector& detector);

/// Whether the text up to its first NUL is exactly a numeric IPv6 or IPv4 address.
///
///     "10.0.0.5", "::1", "::ffff:10.0.0.5"     -> true
///     "10.0.0", "10.0.0.5 ", "server", ""      -> false
bool validIPAddress(std::string_view text);

}  // namespace launcher
