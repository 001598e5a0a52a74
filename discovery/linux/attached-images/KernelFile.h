#pragma once

#include <optional>
#include <string>

namespace launcher {

/// The content of one of the kernel's files. Absent if it is missing, cannot be read, or fails
/// while it is read, since the device that it describes has gone.
std::optional<std::string> readKernelFile(const std::string& path);

}  // namespace launcher
