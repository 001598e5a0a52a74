#pragma once

#include <cstddef>
#include <string_view>

namespace launcher::links {

/// The end of path, query and fragment that begin at a place, or the place itself where nothing of
/// the kind does. Punctuation at the end and brackets opened before the link do not belong to it.
/// Any thread.
///
///     skipTail(u"/a, b", 0)      -> 2
///     skipTail(u"/a(b))", 0)     -> 5
std::size_t skipTail(std::u16string_view text, std::size_t at);

}  // namespace launcher::links
