#pragma once

#include <string>
#include <vector>

namespace launcher {

/// A disk image, and a place where it or one of its partitions is mounted. The paths are the
/// kernel's bytes, which need not be UTF-8.
struct MountedImage {
  std::string path;        ///< " (deleted)" follows it if the file was removed
  std::string device;      ///< such as "/dev/loop0p1"
  std::string mountPoint;  ///< such as "/media/me/Vorx"
};

/// The mounts of images that are attached to loop devices, in the mount table's order. A mount
/// counts if it shows the whole file system and a path leads to it: not a folder that is bound
/// elsewhere, nor a mount that another one covers. Leaves out devices that vanish meanwhile.
///
/// Throws `std::system_error` if the mount table cannot be read.
std::vector<MountedImage> mountedImages();

}  // namespace launcher
