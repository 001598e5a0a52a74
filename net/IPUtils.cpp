#include "net/IPUtils.h"

#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <limits>

#include "base/FatalError.h"
#include "base/Unicode.h"

namespace launcher {
namespace {

constexpr std::size_t kNameBufferSize = 1025;

/// Whether an address has the length that its family requires. Not every system checks the length
/// before it reads the address.
bool isComplete(const SocketAddress& address) {
  sockaddr start{};
  constexpr std::size_t kFamilyEnd = offsetof(sockaddr, sa_family) + sizeof(start.sa_family);
  if (address.size() < kFamilyEnd) return false;
  std::memcpy(&start, address.data(), kFamilyEnd);
  if (start.sa_family == AF_INET) return address.size() >= sizeof(sockaddr_in);
  if (start.sa_family == AF_INET6) return address.size() >= sizeof(sockaddr_in6);
  return true;
}

std::optional<std::string> numericText(const SocketAddress& address) {
  if (!isComplete(address)) return std::nullopt;
  std::array<char, kNameBufferSize> name{};
  const int failure =
      getnameinfo(reinterpret_cast<const sockaddr*>(address.data()), socketLength(address.size()),
                  name.data(), name.size(), nullptr, 0, NI_NUMERICHOST);
  if (failure != 0) return std::nullopt;
  return repairedUtf8(name.data());
}

}  // namespace

std::optional<std::string> IPUtils::getIP(const std::string& domain, const HostResolver& resolver) {
  const auto addresses = resolver.addresses(domain);
  if (!addresses || addresses->empty()) return std::nullopt;
  return numericText(addresses->front());
}

socklen_t socketLength(std::size_t bytes) {
  if (bytes > std::numeric_limits<socklen_t>::max()) {
    fatalError("address too long", "IPUtils", __LINE__);
  }
  return static_cast<socklen_t>(bytes);
}

}  // namespace launcher
