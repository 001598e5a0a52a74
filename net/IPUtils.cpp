#include "net/IPUtils.h"

#include <netdb.h>
#include <sys/socket.h>

#include <array>
#include <cstddef>

#include "base/Unicode.h"
#include "net/SocketLength.h"

namespace launcher {
namespace {

constexpr std::size_t kNameBufferSize = 1025;

std::optional<std::string> numericText(const SocketAddress& address) {
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

}  // namespace launcher
