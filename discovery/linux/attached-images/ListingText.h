#pragma once

#include <string>
#include <vector>

#include "discovery/linux/attached-images/AttachedImageList.h"

namespace launcher {

/// The images as a property list in XML: under "images" an array with a dictionary for each,
/// holding "image-path" and "system-entities", an array of dictionaries with "dev-entry" and, where
/// the device is mounted, "mount-point". Bytes that XML cannot hold become U+FFFD.
std::string propertyListOf(const std::vector<AttachedImage>& images);

/// The images as a text for reading. Control characters are shown as the kernel's mount table shows
/// them, a line feed as "\012".
///
///     /home/me/Launcher.dmg
///         /dev/loop0    not mounted
///         /dev/loop0p1  /media/me/Launcher
std::string tableOf(const std::vector<AttachedImage>& images);

}  // namespace launcher
