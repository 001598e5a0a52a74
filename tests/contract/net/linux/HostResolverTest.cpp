// Hosts with several addresses, and how the machine's own addresses affect the answer. The tests
// run in a process with a hosts file and a network of its own.

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "net/HostResolver.h"
#include "net/IPUtils.h"
#include "tests/contract/ScratchFolder.h"
#include "tests/doubles/FakeHostResolver.h"

namespace launcher {
namespace {

constexpr const char* kHosts =
    "127.0.0.7 many\n"
    "127.0.0.3 many\n"
    "127.0.0.5 many\n"
    "127.0.0.9 a%41b\n"
    "2001:db8::7 six\n"
    "2001:db8::8 both\n"
    "127.0.0.8 both\n";

bool putInPlaceOfHosts(const std::string& file) {
  return unshare(CLONE_NEWNS) == 0 &&
         mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
         mount(file.c_str(), "/etc/hosts", nullptr, MS_BIND, nullptr) == 0;
}

/// Moves this process into a network in which the machine has a single address, of IPv4.
bool leaveAllNetworksButIpv4() {
  if (unshare(CLONE_NEWNET) == -1) return false;
  ifreq request{};
  std::strcpy(request.ifr_name, "lo");
  auto* address = reinterpret_cast<sockaddr_in*>(&request.ifr_addr);
  address->sin_family = AF_INET;
  inet_pton(AF_INET, "10.1.2.3", &address->sin_addr);
  const int any = socket(AF_INET, SOCK_DGRAM, 0);
  const bool hasAddress = ioctl(any, SIOCSIFADDR, &request) == 0;
  request.ifr_flags = IFF_UP;
  const bool isUp = ioctl(any, SIOCSIFFLAGS, &request) == 0;
  close(any);
  return hasAddress && isUp;
}

/// The numeric texts of a host's addresses in their order, or "unknown".
std::string addressesOf(const std::string& host) {
  const auto addresses = makeHostResolver()->addresses(host);
  if (!addresses) return "unknown";
  std::string texts;
  for (const SocketAddress& address : *addresses) {
    texts += *IPUtils::getIP("", FakeHostResolver(std::vector<SocketAddress>{address})) + " ";
  }
  return texts;
}

class HostResolverDeathTest : public testing::Test {
 protected:
  HostResolverDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

  void SetUp() override {
    if (geteuid() != 0) GTEST_SKIP() << "needs root, for a hosts file of its own";
    std::ofstream(folder_.file("hosts")) << kHosts;
  }

  [[noreturn]] void printAddresses(bool isReady, const std::string& host) const {
    const bool hasHosts = isReady && putInPlaceOfHosts(folder_.file("hosts"));
    std::fputs(hasHosts ? addressesOf(host).c_str() : std::strerror(errno), stderr);
    std::_Exit(0);
  }

  void expectAddresses(const std::string& host, const std::string& addresses) const {
    EXPECT_EXIT(printAddresses(true, host), testing::ExitedWithCode(0), "^" + addresses + "$");
  }

  void expectIpv4Addresses(const std::string& host, const std::string& addresses) const {
    EXPECT_EXIT(printAddresses(leaveAllNetworksButIpv4(), host), testing::ExitedWithCode(0),
                "^" + addresses + "$");
  }

  const ScratchFolder folder_;
};

TEST_F(HostResolverDeathTest, KeepsTheResolversOrder) {
  expectAddresses("many", "127.0.0.7 127.0.0.3 127.0.0.5 ");
}

TEST_F(HostResolverDeathTest, PassesTheNameOnAsItStands) {
  expectAddresses("a%41b", "127.0.0.9 ");
  expectAddresses("aAb", "unknown");
}

TEST_F(HostResolverDeathTest, LeavesOutAddressesThatTheMachineCannotReach) {
  expectIpv4Addresses("six", "unknown");
  expectIpv4Addresses("both", "127.0.0.8 ");
  expectIpv4Addresses("2001:db8::7", "2001:db8::7 ");
}

}  // namespace
}  // namespace launcher
