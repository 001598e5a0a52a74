#pragma once

#include <string>
#include <vector>

namespace launcher {

/// A device that can be mounted.
struct BlockDevice {
  std::string name;    ///< such as "loop0" or "loop0p1"
  std::string number;  ///< such as "7:0"

  friend bool operator==(const BlockDevice&, const BlockDevice&) = default;
};

/// A loop device with an image attached to it.
struct LoopDevice {
  std::string imagePath;  ///< the kernel's; " (deleted)" follows it if the image was removed
  std::vector<BlockDevice> devices;  ///< the whole device, then its partitions

  friend bool operator==(const LoopDevice&, const LoopDevice&) = default;
};

/// The loop devices that have an image, in the order of their numbers. `folder` is the kernel's
/// list of block devices, usually "/sys/class/block". Leaves out devices that vanish meanwhile or
/// cannot be read.
///
/// Throws `std::system_error` if the folder cannot be read.
std::vector<LoopDevice> readLoopDevices(const std::string& folder);

}  // namespace launcher
