#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "net/linux/links/Link.h"

/// The parts of a link that follow its scheme. No state; any thread.
namespace launcher::links {

/// Reads credentials, host, port and tail from a place on. Absent if there is no host.
///
///     u"u:p@h:80/x"   -> host "h", end behind "x"
///     u"[::1]:80"     -> host "[::1]", end behind "80"
///     u"h."           -> host "h": the full stop ends a sentence
///     u"/x"           -> absent
std::optional<Link> readAddress(std::u16string_view text, std::size_t at);

/// The end of the port, path, query and fragment at a place, or the place itself if there are none.
/// They end before punctuation at the end, and before the closing bracket of one that was opened
/// before the link.
///
///     skipPortAndTail(u":80/a, b", 0)   -> 5
///     skipPortAndTail(u"/a(b))", 0)     -> 5
std::size_t skipPortAndTail(std::u16string_view text, std::size_t at);

}  // namespace launcher::links
