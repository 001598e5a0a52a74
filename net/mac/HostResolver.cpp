#include "net/HostResolver.h"

#include <CFNetwork/CFNetwork.h>
#include <CoreFoundation/CoreFoundation.h>

#include <cstring>
#include <type_traits>

namespace launcher {
namespace {

struct Release {
  void operator()(CFTypeRef object) const { CFRelease(object); }
};

template <class Reference>
using Owned = std::unique_ptr<std::remove_pointer_t<Reference>, Release>;

/// Null for an empty name and for one with a NUL, which the platform would read only up to the NUL.
Owned<CFStringRef> hostName(const std::string& text) {
  if (text.empty() || text.find('\0') != std::string::npos) return nullptr;
  const std::vector<UInt8> bytes(text.begin(), text.end());
  return Owned<CFStringRef>(CFStringCreateWithBytes(kCFAllocatorDefault, bytes.data(),
                                                    static_cast<CFIndex>(bytes.size()),
                                                    kCFStringEncodingUTF8, false));
}

/// The address in an element. One of another kind becomes an empty address, which has no numeric
/// form.
SocketAddress addressIn(CFTypeRef element) {
  if (CFGetTypeID(element) != CFDataGetTypeID()) return {};
  const auto data = static_cast<CFDataRef>(element);
  SocketAddress address(static_cast<std::size_t>(CFDataGetLength(data)));
  std::memcpy(address.data(), CFDataGetBytePtr(data), address.size());
  return address;
}

class CoreHostResolver : public HostResolver {
 public:
  std::optional<std::vector<SocketAddress>> addresses(const std::string& name) const override {
    const auto text = hostName(name);
    if (!text) return std::nullopt;
    const Owned<CFHostRef> host(CFHostCreateWithName(kCFAllocatorDefault, text.get()));
    if (!host) return std::nullopt;

    // This blocks until the resolver has answered, since no callback is set.
    CFHostStartInfoResolution(host.get(), kCFHostAddresses, nullptr);
    Boolean resolved = false;
    CFArrayRef found = CFHostGetAddressing(host.get(), &resolved);
    if (found == nullptr) return std::nullopt;

    std::vector<SocketAddress> addresses;
    for (CFIndex at = 0; at < CFArrayGetCount(found); ++at) {
      addresses.push_back(addressIn(CFArrayGetValueAtIndex(found, at)));
    }
    return addresses;
  }
};

}  // namespace

std::unique_ptr<HostResolver> makeHostResolver() { return std::make_unique<CoreHostResolver>(); }

}  // namespace launcher
