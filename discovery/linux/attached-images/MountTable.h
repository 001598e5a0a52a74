#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace launcher {

/// A place where a file system is mounted.
struct Mount {
  std::string number;      ///< the device's, such as "7:0"
  std::string source;      ///< what was mounted, such as "/dev/loop0"
  std::string mountPoint;  ///< bytes as the kernel has them, UTF-8 or not

  friend bool operator==(const Mount&, const Mount&) = default;
};

/// Reads the kernel's mount table, in its order. The kernel's escapes are decoded; lines of another
/// shape are passed over.
///
///     "36 25 7:0 / /mnt/a\040b ro - squashfs /dev/loop0 ro\n"   -> {"7:0", "/dev/loop0", "/mnt/a
///     b"}
std::vector<Mount> parseMountTable(std::string_view text);

}  // namespace launcher
