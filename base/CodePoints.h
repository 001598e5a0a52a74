#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace launcher {

/// A code point and its length in bytes or units. An ill-formed sequence has no point; its length
/// is that of the part that could have begun a well-formed one.
struct CodePoint {
  std::optional<char32_t> value;
  std::size_t length = 1;
};

/// Reads the code point at the start of a text that is not empty. Any thread.
CodePoint firstCodePoint(std::string_view utf8);
CodePoint firstCodePoint(std::u16string_view utf16);

}  // namespace launcher
