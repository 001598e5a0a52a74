#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace launcher {

/// How the desktop's store of metadata is asked.
struct MetadataTool {
  std::string path = "/usr/bin/gio";
  std::chrono::milliseconds limit = std::chrono::seconds(3);  ///< for one answer
};

/// The address that a file was downloaded from, as the desktop's store of metadata keeps it for
/// browsers that record none with the file itself, Firefox among them. Absent where nothing is
/// recorded, where the desktop has no such store, and where it does not answer in time. Blocks for
/// as long; any thread but the main one.
///
///     downloadAddress("/home/me/Downloads/Launcher.dmg")   -> "https://h/D/Launcher.dmg"
std::optional<std::string> downloadAddress(const std::string& path, const MetadataTool& tool = {});

}  // namespace launcher
