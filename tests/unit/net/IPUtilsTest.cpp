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
  for (const std::string name : {" Server.Example ", "a%41b%", "\u00e9.example", ""}) {
    resolver.asked.clear();
    IPUtils::getIP(name, resolver);
    EXPECT_EQ(resolver.asked, std::vector<std::string>{name});
  }
}

TEST(IPUtilsTest, AsksOnceAlsoWhereThereIsNoAnswer) {
  const FakeHostResolver unknown;
  const FakeHostResolver empty(std::vector<SocketAddress>{});
  const FakeHostResolver unreadable(std::vector<SocketAddress>{SocketAddress(1)});
  for (const FakeHostResolver* resolver : {&unknown, &empty, &unreadable}) {
    EXPECT_EQ(IPUtils::getIP("host", *resolver), std::nullopt);
    EXPECT_EQ(resolver->asked, std::vector<std::string>{"host"});
  }
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

TEST(IPUtilsTest, HasRoomForTheLongestAddress) {
  EXPECT_EQ(firstOf({ipv6("fe80:0:3333:4444:5555:6666:7777:8888", 0xFFFFFFFF)}),
            "fe80:0:3333:4444:5555:6666:7777:8888%4294967295");
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
  const SocketAddress six = ipv6("2001:db8::1");
  EXPECT_EQ(firstOf({SocketAddress(six.begin(), six.end() - 1), good}), std::nullopt);
}

TEST(IPUtilsTest, ALengthOfASocketCallHas32Bits) {
  EXPECT_EQ(socketLength(0), 0U);
  EXPECT_EQ(socketLength(28), 28U);
  EXPECT_EQ(socketLength(0xFFFFFFFF), 0xFFFFFFFF);
}

TEST(IPUtilsDeathTest, ALongerAddressEndsTheProgram) {
  EXPECT_DEATH(socketLength(std::size_t{1} << 32U), "fatal error: .*IPUtils");
}

}  // namespace
}  // namespace launcher
