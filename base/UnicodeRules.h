#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// What the platform knows about Unicode. Asked by Unicode.cpp, for texts that are not plain ASCII;
/// everyone else uses Unicode.h. Units are UTF-16 without lone surrogates. No state; any thread.
namespace launcher {

/// The number of extended grapheme clusters.
std::size_t graphemeClusterCount(std::u16string_view units);

/// The canonical decomposition (NFD).
std::u16string decomposition(std::u16string_view units);

}  // namespace launcher
