#pragma once

#include <string>
#include <vector>

namespace launcher {

/// What a screen reader was asked to say, in order. The tests may clear it.
std::vector<std::string>& announcements();

}  // namespace launcher
