#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

/// The part of a link that names the server. No state; any thread.
namespace launcher::links {

/// Where the host stands in a text, and where what belongs to it (a port) ends.
struct Authority {
  std::size_t hostBegin = 0;
  std::size_t hostEnd = 0;
  std::size_t end = 0;
};

/// Reads credentials, host and port that begin at a place. Absent where no host is there.
///
///     u"u:p@h:80/x"   -> host "h", end before "/"
///     u"[::1]:80"     -> host "[::1]", end behind "80"
///     u"h."           -> host "h": the full stop ends a sentence
///     u"/x"           -> absent
std::optional<Authority> readAuthority(std::u16string_view text, std::size_t at);

/// The end of a port at a place, or the place itself where there is none.
std::size_t skipPort(std::u16string_view text, std::size_t at);

}  // namespace launcher::links
