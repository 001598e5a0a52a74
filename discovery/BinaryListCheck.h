#pragma once

#include <string_view>

namespace launcher {

/// Whether the bytes begin like a list in binary form.
bool isBinaryList(std::string_view bytes);

/// Refuses a binary list that is cut off, refers to itself, or unfolds beyond the limits. A value
/// counts as often as the list refers to it. The check makes no values and stops at the first one
/// beyond the limits, so it takes milliseconds even for 140 bytes that unfold to billions. Throws
/// `UnreadableList`. Any thread.
void checkBinaryList(std::string_view bytes);

}  // namespace launcher
