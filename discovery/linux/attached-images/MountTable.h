#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace launcher {

/// A place where a file system, or a folder of one, is mounted. Paths are bytes as the kernel has
/// them, UTF-8 or not.
struct Mount {
  int id = 0;
  int parent = 0;          ///< the mount that the mount point lies in
  std::string number;      ///< the device's, such as "7:0"
  std::string root;        ///< the folder of the file system that is mounted; "/" is all of it
  std::string mountPoint;  ///< such as "/media/me/Vorx"
  std::string type;        ///< the file system's, such as "squashfs"
  std::string source;      ///< what was mounted, such as "/dev/loop0"

  friend bool operator==(const Mount&, const Mount&) = default;
};

/// Reads the kernel's mount table, in its order. The kernel's escapes are decoded; lines of another
/// shape are passed over.
///
///     36 25 7:0 / /mnt/a\040b ro - squashfs /dev/loop0 ro
///       -> {36, 25, "7:0", "/", "/mnt/a b", "squashfs", "/dev/loop0"}
std::vector<Mount> parseMountTable(std::string_view text);

/// The mounts that their mount points lead to: those that no other mount covers, be it at the same
/// place or at a folder above. Keeps the order.
std::vector<Mount> reachableMounts(const std::vector<Mount>& mounts);

}  // namespace launcher
