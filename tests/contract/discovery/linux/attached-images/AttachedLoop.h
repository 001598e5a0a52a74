#pragma once

#include <fcntl.h>
#include <linux/blkpg.h>
#include <linux/loop.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string>

#include "tests/contract/Eventually.h"

namespace launcher {

/// An image attached to a loop device, and detached at the end. If the test dies, the kernel
/// detaches it.
class AttachedLoop {
 public:
  explicit AttachedLoop(const std::string& image) {
    const int file = open(image.c_str(), O_RDWR | O_CLOEXEC);
    const int control = open("/dev/loop-control", O_RDWR | O_CLOEXEC);
    loop_config config{};
    config.fd = static_cast<unsigned>(file);
    config.info.lo_flags = LO_FLAGS_AUTOCLEAR | LO_FLAGS_PARTSCAN;
    // Another process may take the free device in between.
    const auto attached = [&] { return attachToFree(control, config) || errno != EBUSY; };
    if (control != -1) eventually(attached);
    if (device_ == -1) error_ = std::strerror(errno);
    close(control);
    close(file);
  }
  AttachedLoop(const AttachedLoop&) = delete;
  AttachedLoop& operator=(const AttachedLoop&) = delete;
  ~AttachedLoop() {
    if (device_ != -1) close(device_);
  }

  /// Why it could not be attached; empty if it was.
  const std::string& error() const { return error_; }

  /// Such as "/dev/loop0".
  const std::string& device() const { return path_; }

  /// Makes a partition known to the kernel, whether or not the image has a partition table. `start`
  /// and `length` are in megabytes. False if the kernel refuses.
  bool addPartition(int number, int start, int length) const {
    blkpg_partition partition{};
    partition.start = static_cast<long long>(start) << 20;
    partition.length = static_cast<long long>(length) << 20;
    partition.pno = number;
    blkpg_ioctl_arg argument{BLKPG_ADD_PARTITION, 0, sizeof(partition), &partition};
    return ioctl(device_, BLKPG, &argument) == 0;
  }

 private:
  bool attachToFree(int control, const loop_config& config) {
    const int number = ioctl(control, LOOP_CTL_GET_FREE);
    if (number == -1) return false;
    path_ = "/dev/loop" + std::to_string(number);
    const int device = open(path_.c_str(), O_RDWR | O_CLOEXEC);
    if (device == -1) return false;
    if (ioctl(device, LOOP_CONFIGURE, &config) == 0) {
      device_ = device;
      return true;
    }
    const int reason = errno;
    close(device);
    errno = reason;
    return false;
  }

  int device_ = -1;
  std::string path_;
  std::string error_;
};

/// A device mounted at a folder. Makes the folder first, and unmounts the device at the end.
class MountedFolder {
 public:
  MountedFolder(const std::string& device, const std::string& type, const std::string& folder,
                unsigned long flags = MS_RDONLY, const std::string& options = "")
      : folder_(folder), mounted_(mountAt(device, type, folder, flags, options)) {
    if (!mounted_) error_ = std::strerror(errno);
  }
  MountedFolder(const MountedFolder&) = delete;
  MountedFolder& operator=(const MountedFolder&) = delete;
  ~MountedFolder() {
    if (mounted_) umount2(folder_.c_str(), MNT_DETACH);
  }

  /// Why it could not be mounted; empty if it was.
  const std::string& error() const { return error_; }

 private:
  static bool mountAt(const std::string& device, const std::string& type, const std::string& folder,
                      unsigned long flags, const std::string& options) {
    std::filesystem::create_directories(folder);
    return mount(device.c_str(), folder.c_str(), type.c_str(), flags, options.c_str()) == 0;
  }

  std::string folder_;
  bool mounted_;
  std::string error_;
};

}  // namespace launcher
