#pragma once

#include <string_view>

namespace launcher {

/// Whether the bytes begin as a list in binary form does.
bool isBinaryList(std::string_view bytes);

/// Refuses a binary list that is cut off, refers to itself, or would unfold beyond the limits: each
/// value counts as often as it is referred to. Looks at every object once, so that this takes
/// little time even where the count is immense: 140 bytes can unfold to billions of values.
/// Throws `UnreadableList`. Any thread.
void checkBinaryList(std::string_view bytes);

}  // namespace launcher
