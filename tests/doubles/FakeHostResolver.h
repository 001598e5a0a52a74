#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstddef>
#include <cstring>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "net/HostResolver.h"

namespace launcher {

/// A resolver that answers as it is told, for every host alike, and notes whom it was asked for.
class FakeHostResolver : public HostResolver {
 public:
  explicit FakeHostResolver(std::optional<std::vector<SocketAddress>> given = std::nullopt)
      : answer(std::move(given)) {}

  std::optional<std::vector<SocketAddress>> addresses(const std::string& host) const override {
    asked.push_back(host);
    return answer;
  }

  std::optional<std::vector<SocketAddress>> answer;
  mutable std::vector<std::string> asked;
};

template <typename Address>
SocketAddress bytesOf(const Address& address) {
  SocketAddress bytes(sizeof address);
  std::memcpy(bytes.data(), &address, sizeof address);
  return bytes;
}

/// The socket address of a dotted IPv4 text.
inline SocketAddress ipv4(const std::string& text) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  inet_pton(AF_INET, text.c_str(), &address.sin_addr);
  return bytesOf(address);
}

/// The socket address of an IPv6 text, with the scope of a link-local one.
inline SocketAddress ipv6(const std::string& text, unsigned scope = 0) {
  sockaddr_in6 address{};
  address.sin6_family = AF_INET6;
  address.sin6_scope_id = scope;
  inet_pton(AF_INET6, text.c_str(), &address.sin6_addr);
  return bytesOf(address);
}

}  // namespace launcher
