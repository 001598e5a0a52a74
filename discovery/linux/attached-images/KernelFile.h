#pragma once

#include <optional>
#include <string>

namespace launcher {

/// All that a file of the kernel's says at the moment; absent where it is missing, cannot be read,
/// or fails while it is read because what it tells of has gone.
std::optional<std::string> readKernelFile(const std::string& path);

}  // namespace launcher
