#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace launcher {

/// The tool that reads the desktop's store of metadata.
struct MetadataTool {
  std::string path = "/usr/bin/gio";
  std::chrono::milliseconds limit = std::chrono::seconds(3);  ///< for one answer
};

/// The address that a file was downloaded from, as the desktop's store of metadata has it. Browsers
/// such as Firefox record it there, not with the file itself. Absent if nothing is recorded, the
/// desktop has no such store, or it does not answer within the limit. Blocks until then; any thread
/// but the main one.
///
///     downloadAddress("/home/me/Downloads/Launcher.dmg")   -> "https://h/D/Launcher.dmg"
std::optional<std::string> downloadAddress(const std::string& path, const MetadataTool& tool = {});

}  // namespace launcher
