#pragma once

#include <string_view>

namespace launcher {

/// What the elements of a property list that hold neither texts nor values may contain.

/// A whole number of 64 bits, signed or not, decimal or hexadecimal.
///
///     "12"  " -0x1F"   -> true
///     ""  "1.5"  "1 "  -> false
bool isInteger(std::string_view text);

/// A number with or without fraction and exponent, an infinity, or no number.
///
///     "-1.5e3"  "+inf"  "NaN"   -> true
bool isReal(std::string_view text);

/// A moment in universal time, to the second. Any two digits pass for a month, a day and so on.
///
///     "2024-02-29T23:59:60Z"   -> true
bool isDate(std::string_view text);

}  // namespace launcher
