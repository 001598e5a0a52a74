#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace launcher {

/// A socket address as the resolver gave it: the bytes of a `sockaddr` of its family.
using SocketAddress = std::vector<std::byte>;

/// Asks the platform for the addresses of a host.
class HostResolver {
 public:
  virtual ~HostResolver() = default;

  /// The host's addresses in the resolver's order, or absent where it knows none. The name is
  /// passed on as it stands; an empty one and one with a NUL name no host. Addresses of a family
  /// that this machine has no address of itself do not count, unless the name is such an address.
  /// Blocks for as long as the resolver takes; any thread but the main one.
  virtual std::optional<std::vector<SocketAddress>> addresses(const std::string& host) const = 0;
};

std::unique_ptr<HostResolver> makeHostResolver();

}  // namespace launcher
