#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

/// The part of a link that names the server. No state; any thread.
namespace launcher::links {

/// The place of the host in a text, and the end of its port.
struct Authority {
  std::size_t hostBegin = 0;
  std::size_t hostEnd = 0;
  std::size_t end = 0;
};

/// Reads credentials, host and port from a place on. Absent if there is no host.
///
///     u"u:p@h:80/x"   -> host "h", end before "/"
///     u"[::1]:80"     -> host "[::1]", end behind "80"
///     u"h."           -> host "h": the full stop ends a sentence
///     u"/x"           -> absent
std::optional<Authority> readAuthority(std::u16string_view text, std::size_t at);

/// The end of the port at a place, or the place itself if there is none.
std::size_t skipPort(std::u16string_view text, std::size_t at);

}  // namespace launcher::links
