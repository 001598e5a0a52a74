#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The platform's knowledge of Unicode. Only Unicode.cpp uses it, for texts beyond ASCII;
/// everything else uses Unicode.h. Units are UTF-16 without lone surrogates. No state; any thread.
namespace launcher {

/// The number of user-perceived characters, counted as `characterCount` says.
std::size_t graphemeClusterCount(std::u16string_view units);

/// The canonical decomposition (NFD).
std::u16string decomposition(std::u16string_view units);

}  // namespace launcher
