#pragma once

#include <string_view>

namespace launcher {

/// Whether what stands in a list's element is read on macOS, too.

/// A whole number of 64 bits, decimal or hexadecimal.
///
///     "12"  " -0x1F"                           -> true
///     ""  "1.5"  "1 "  "18446744073709551616"  -> false
bool isInteger(std::string_view text);

/// A number with or without fraction and exponent, an infinity, or no number.
///
///     "-1.5e3"  "+inf"  "NaN"  "1e400"   -> true
bool isReal(std::string_view text);

/// A moment in universal time, to the second. Any two digits pass for a month, a day and so on.
///
///     "2024-02-29T23:59:60Z"   -> true
bool isDate(std::string_view text);

}  // namespace launcher
