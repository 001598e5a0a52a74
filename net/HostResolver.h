#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace launcher {

/// The resolver's socket address: the bytes of a `sockaddr` of its family.
using SocketAddress = std::vector<std::byte>;

/// Looks up the addresses of a host.
class HostResolver {
 public:
  virtual ~HostResolver() = default;

  /// The host's addresses in the resolver's order, or absent if it knows none. Passes the name on
  /// unchanged; an empty name, or one with a NUL, names no host. Leaves out a family of which this
  /// machine has no address, unless the name is such an address. Blocks as long as the resolver
  /// does; any thread but the main one.
  virtual std::optional<std::vector<SocketAddress>> addresses(const std::string& host) const = 0;
};

std::unique_ptr<HostResolver> makeHostResolver();

}  // namespace launcher
