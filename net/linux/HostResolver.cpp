#include "net/HostResolver.h"

#include <netdb.h>
#include <sys/socket.h>

#include <cstring>

namespace launcher {
namespace {

struct FreeList {
  void operator()(addrinfo* list) const { freeaddrinfo(list); }
};

SocketAddress bytesOf(const addrinfo& entry) {
  SocketAddress bytes(entry.ai_addrlen);
  std::memcpy(bytes.data(), entry.ai_addr, entry.ai_addrlen);
  return bytes;
}

/// An empty name or one with a NUL names no host, but the platform's call would take it for none
/// given or for its beginning.
bool canNameAHost(const std::string& host) {
  return !host.empty() && host.find('\0') == std::string::npos;
}

class SystemResolver : public HostResolver {
 public:
  std::optional<std::vector<SocketAddress>> addresses(const std::string& host) const override {
    if (!canNameAHost(host)) return std::nullopt;

    addrinfo wanted{};
    wanted.ai_family = AF_UNSPEC;
    wanted.ai_socktype = SOCK_STREAM;  // else each address comes once per socket type
    addrinfo* first = nullptr;
    if (getaddrinfo(host.c_str(), nullptr, &wanted, &first) != 0) return std::nullopt;

    const std::unique_ptr<addrinfo, FreeList> list(first);
    std::vector<SocketAddress> found;
    for (const addrinfo* entry = first; entry != nullptr; entry = entry->ai_next) {
      found.push_back(bytesOf(*entry));
    }
    return found;
  }
};

}  // namespace

std::unique_ptr<HostResolver> makeHostResolver() { return std::make_unique<SystemResolver>(); }

}  // namespace launcher
