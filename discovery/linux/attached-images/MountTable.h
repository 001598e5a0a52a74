#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace launcher {

/// A place where a file system, or a folder of one, is mounted. Paths are the kernel's bytes, which
/// need not be UTF-8.
struct Mount {
  int id = 0;
  int parent = 0;          ///< the mount that holds the mount point
  std::string number;      ///< of the device, such as "7:0"
  std::string root;        ///< the folder of the file system that is mounted; "/" is all of it
  std::string mountPoint;  ///< such as "/media/me/Vorx"
  std::string type;        ///< the file system's, such as "squashfs"
  std::string source;      ///< what was mounted, such as "/dev/loop0"

  friend bool operator==(const Mount&, const Mount&) = default;
};

/// Reads the kernel's mount table in its order. Decodes the kernel's escapes and skips lines of
/// another shape.
///
///     36 25 7:0 / /mnt/a\040b ro - squashfs /dev/loop0 ro
///       -> {36, 25, "7:0", "/", "/mnt/a b", "squashfs", "/dev/loop0"}
std::vector<Mount> parseMountTable(std::string_view text);

/// The mounts that a path leads to, in the same order. Leaves out a mount that another one covers,
/// at the same place or at a folder above.
std::vector<Mount> reachableMounts(const std::vector<Mount>& mounts);

}  // namespace launcher
