#include "net/HostResolver.h"

#include <netdb.h>
#include <sys/socket.h>

namespace launcher {
namespace {

struct FreeList {
  void operator()(addrinfo* list) const { freeaddrinfo(list); }
};

/// `getaddrinfo` would read an empty name as none given, and a name with a NUL only up to the NUL.
/// Neither names a host.
bool canNameAHost(const std::string& host) {
  return !host.empty() && host.find('\0') == std::string::npos;
}

using AddressList = std::unique_ptr<addrinfo, FreeList>;

/// Null if the platform finds nothing.
AddressList lookUp(const std::string& host, int flags) {
  addrinfo wanted{};
  wanted.ai_flags = flags;
  wanted.ai_family = AF_UNSPEC;
  wanted.ai_socktype = SOCK_STREAM;  // else each address comes once per socket type
  addrinfo* list = nullptr;
  return AddressList(getaddrinfo(host.c_str(), nullptr, &wanted, &list) == 0 ? list : nullptr);
}

class SystemResolver : public HostResolver {
 public:
  std::optional<std::vector<SocketAddress>> addresses(const std::string& host) const override {
    if (!canNameAHost(host)) return std::nullopt;

    // Accept a numeric address of any family. `AI_ADDRCONFIG` would refuse one of a family that
    // this machine has no address of.
    AddressList list = lookUp(host, AI_NUMERICHOST);
    if (!list) list = lookUp(host, AI_ADDRCONFIG);
    if (!list) return std::nullopt;

    std::vector<SocketAddress> found;
    for (const addrinfo* entry = list.get(); entry != nullptr; entry = entry->ai_next) {
      const auto* bytes = reinterpret_cast<const std::byte*>(entry->ai_addr);
      found.emplace_back(bytes, bytes + entry->ai_addrlen);
    }
    return found;
  }
};

}  // namespace

std::unique_ptr<HostResolver> makeHostResolver() { return std::make_unique<SystemResolver>(); }

}  // namespace launcher
