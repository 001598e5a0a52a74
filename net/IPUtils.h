#pragma once

#include <sys/socket.h>

#include <cstddef>
#include <optional>
#include <string>

#include "net/HostResolver.h"

namespace launcher {

class IPUtils {
 public:
  /// The numeric text of the host's first address, whatever its family, or absent. One resolution
  /// per call, nothing cached. Blocks as long as the resolver does; any thread but the main one.
  ///
  ///     getIP("10.0.0.5")          -> "10.0.0.5"
  ///     getIP("nohost.invalid")    -> absent
  static std::optional<std::string> getIP(const std::string& domain, const HostResolver& resolver);
};

/// A byte count as the socket calls take it. Ends the program where it does not fit 32 bits.
socklen_t socketLength(std::size_t bytes);

}  // namespace launcher
