#pragma once

#include <cstddef>
#include <string_view>

namespace launcher::links {

/// The end of the path, query and fragment at a place, or the place itself if there are none. They
/// end before punctuation at the end, and before the closing bracket of one that was opened before
/// the link. Any thread.
///
///     skipTail(u"/a, b", 0)      -> 2
///     skipTail(u"/a(b))", 0)     -> 5
std::size_t skipTail(std::u16string_view text, std::size_t at);

}  // namespace launcher::links
