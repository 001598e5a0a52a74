#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "net/IPUtils.h"
#include "tests/doubles/FakeHostResolver.h"

namespace launcher {
namespace {

std::optional<std::string> firstOf(std::vector<SocketAddress> addresses) {
  return IPUtils::getIP("host", FakeHostResolver(std::move(addresses)));
}

TEST(IPUtilsTest, AsksTheResolverOnceForTheNameAsItStands) {
  const FakeHostResolver resolver(std::vector<SocketAddress>{ipv4("10.0.0.5")});
  IPUtils::getIP(" Server.Example ", resolver);
  EXPECT_EQ(resolver.asked, std::vector<std::string>{" Server.Example "});
}

TEST(IPUtilsTest, CachesNothing) {
  const FakeHostResolver resolver(std::vector<SocketAddress>{ipv4("10.0.0.5")});
  IPUtils::getIP("host", resolver);
  IPUtils::getIP("host", resolver);
  EXPECT_EQ(resolver.asked.size(), 2U);
}

TEST(IPUtilsTest, AnUnknownHostHasNoAddress) {
  EXPECT_EQ(IPUtils::getIP("host", FakeHostResolver()), std::nullopt);
  EXPECT_EQ(firstOf({}), std::nullopt);
}

TEST(IPUtilsTest, TheFirstAddressWinsWhateverItsFamily) {
  EXPECT_EQ(firstOf({ipv4("10.0.0.5")}), "10.0.0.5");
  EXPECT_EQ(firstOf({ipv4("10.0.0.5"), ipv6("2001:db8::1")}), "10.0.0.5");
  EXPECT_EQ(firstOf({ipv6("2001:db8::1"), ipv4("10.0.0.5")}), "2001:db8::1");
  EXPECT_EQ(firstOf({ipv4("10.0.0.6"), ipv4("10.0.0.5")}), "10.0.0.6");
}

TEST(IPUtilsTest, WritesAddressesAsThePlatformDoes) {
  EXPECT_EQ(firstOf({ipv6("::1")}), "::1");
  EXPECT_EQ(firstOf({ipv6("2001:DB8:0:0:0:0:0:1")}), "2001:db8::1");
  EXPECT_EQ(firstOf({ipv6("::ffff:10.0.0.5")}), "::ffff:10.0.0.5");
}

TEST(IPUtilsTest, AnAddressThatHasANameStaysAnAddress) {
  EXPECT_EQ(firstOf({ipv4("127.0.0.1")}), "127.0.0.1");
}

TEST(IPUtilsTest, KeepsTheScopeThatThePlatformAdds) {
  const std::optional<std::string> text = firstOf({ipv6("fe80::1", 1)});
  ASSERT_TRUE(text);
  EXPECT_TRUE(text->starts_with("fe80::1%")) << *text;
}

TEST(IPUtilsTest, AFirstElementThatIsNoAddressGivesNoneThoughOthersFollow) {
  SocketAddress unknownFamily = ipv4("10.0.0.5");
  unknownFamily[0] = std::byte{0xEE};
  unknownFamily[1] = std::byte{0xEE};
  const SocketAddress good = ipv4("10.0.0.5");
  EXPECT_EQ(firstOf({unknownFamily, good}), std::nullopt);
  EXPECT_EQ(firstOf({SocketAddress{}, good}), std::nullopt);
  EXPECT_EQ(firstOf({SocketAddress(1), good}), std::nullopt);
  EXPECT_EQ(firstOf({SocketAddress(good.begin(), good.begin() + 7), good}), std::nullopt);
}

}  // namespace
}  // namespace launcher
