#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Host names of links. No state; any thread.
namespace launcher::links {

/// The host for a URL: unchanged if it is ASCII, else in its Punycode form. Absent if it has no
/// such form.
///
///     u"Server.example"        -> "Server.example"
///     u"b\u00fccher.example"   -> "xn--bcher-kva.example"
std::optional<std::string> asciiHost(std::u16string_view host);

/// Whether a text without a scheme looks like a domain: two or more labels, the last a known
/// top-level domain; or three or more, the first "www".
///
///     u"server.example.com"   -> true
///     u"file.txt"             -> false
///     u"10.0.0.1"             -> false
bool isBareDomain(std::u16string_view text);

}  // namespace launcher::links
