#pragma once

#include <sys/socket.h>

#include <cstddef>
#include <optional>
#include <string>

#include "net/HostResolver.h"

namespace launcher {

class IPUtils {
 public:
  /// The numeric text of the host's first address, of any family, or absent. Each call resolves
  /// once and caches nothing. Blocks as long as the resolver does; any thread but the main one.
  ///
  ///     getIP("10.0.0.5")          -> "10.0.0.5"
  ///     getIP("nohost.invalid")    -> absent
  static std::optional<std::string> getIP(const std::string& domain, const HostResolver& resolver);
};

/// Converts a byte count for the socket calls. Ends the program if it does not fit 32 bits.
socklen_t socketLength(std::size_t bytes);

}  // namespace launcher
