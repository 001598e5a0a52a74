#pragma once

#include <string_view>

namespace launcher {

/// Refuses a number or a date that none of the platforms reads, though nobody asks for its value:
/// a list is read on all of them, or on none. Throws `UnreadableList`.
///
///     "integer"  " -0x1F"                -> passes
///     "integer"  "1 "  "18446744073709551616"   -> refused
///     "real"     "+inf"  "1e400"         -> passes
///     "date"     "2024-02-29T23:59:60Z"  -> passes: any two digits are a month, a day and so on
///     "data"     whatever                -> passes
void checkLeaf(std::string_view element, std::string_view text);

}  // namespace launcher
