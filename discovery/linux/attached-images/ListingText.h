#pragma once

#include <string>
#include <vector>

#include "discovery/linux/attached-images/AttachedImageList.h"

namespace launcher {

/// The images as an XML property list. The key "images" holds an array with a dictionary for each
/// image: "image-path" and "system-entities", an array of dictionaries with "dev-entry" and, for a
/// mounted device, "mount-point". Bytes that XML cannot hold become U+FFFD.
std::string propertyListOf(const std::vector<AttachedImage>& images);

/// The images as a text for people. Control characters appear as in the kernel's mount table: a
/// line feed as "\012".
///
///     /home/me/Launcher.dmg
///         /dev/loop0    not mounted
///         /dev/loop0p1  /media/me/Launcher
std::string tableOf(const std::vector<AttachedImage>& images);

}  // namespace launcher
