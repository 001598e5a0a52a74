#pragma once

#include <optional>
#include <string>
#include <vector>

#include "discovery/linux/attached-images/LoopDevices.h"
#include "discovery/linux/attached-images/MountTable.h"

namespace launcher {

/// A device of an image, and a place where it is mounted.
struct ImageEntity {
  std::string device;                     ///< such as "/dev/loop0p1"
  std::optional<std::string> mountPoint;  ///< absent if it is not mounted

  friend bool operator==(const ImageEntity&, const ImageEntity&) = default;
};

struct AttachedImage {
  std::string path;
  std::vector<ImageEntity> entities;

  friend bool operator==(const AttachedImage&, const AttachedImage&) = default;
};

/// Finds the mounts of each image: an entity for each place where a device is mounted, in the mount
/// table's order, or a single one for a device that is not mounted. A mount counts if a path leads
/// to it and it shows the whole file system; a mount that another one covers does not count, nor a
/// folder bound elsewhere.
std::vector<AttachedImage> attachedImages(const std::vector<LoopDevice>& loops,
                                          const std::vector<Mount>& mounts);

}  // namespace launcher
