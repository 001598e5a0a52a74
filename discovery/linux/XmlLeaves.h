#pragma once

#include <string_view>

namespace launcher {

/// Tell whether macOS reads the text of an element that this program only skips. No state; any
/// thread.

/// Whether it is a whole number of 64 bits, decimal or hexadecimal.
///
///     "12"  " -0x1F"                           -> true
///     ""  "1.5"  "1 "  "18446744073709551616"  -> false
bool isInteger(std::string_view text);

/// Whether it is a number, with or without fraction and exponent, an infinity or a NaN.
///
///     "-1.5e3"  "+inf"  "NaN"  "1e400"   -> true
bool isReal(std::string_view text);

/// Whether it is a moment in universal time, to the second. Any two digits pass for a month, a day
/// and so on.
///
///     "2024-02-29T23:59:60Z"   -> true
bool isDate(std::string_view text);

}  // namespace launcher
