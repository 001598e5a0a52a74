#include <gtest/gtest.h>

#include <set>
#include <string>

#include "net/HostResolver.h"
#include "net/IPUtils.h"
#include "tests/contract/net/OnThreads.h"

// Names that are resolved without a network.
namespace launcher {
namespace {

std::optional<std::string> ipOf(const std::string& host) {
  return IPUtils::getIP(host, *makeHostResolver());
}

TEST(HostResolverTest, NumericAddressesAreThemselves) {
  for (const std::string text : {"10.0.0.5", "127.0.0.1", "::1", "2001:db8::1"}) {
    EXPECT_EQ(ipOf(text), text);
  }
}

TEST(HostResolverTest, KnowsThisMachine) {
  const std::optional<std::string> address = ipOf("localhost");
  ASSERT_TRUE(address);
  EXPECT_TRUE(std::set<std::string>({"127.0.0.1", "::1"}).contains(*address)) << *address;
}

TEST(HostResolverTest, ListsEachAddressOnce) {
  const auto addresses = makeHostResolver()->addresses("localhost");
  ASSERT_TRUE(addresses);
  EXPECT_EQ(std::set<SocketAddress>(addresses->begin(), addresses->end()).size(),
            addresses->size());
  EXPECT_EQ(makeHostResolver()->addresses("10.0.0.5")->size(), 1U);
}

TEST(HostResolverTest, UnusableNamesHaveNoAddress) {
  const std::string names[] = {
      "",
      "nohost.invalid",
      std::string("127.0.0.1\0", 10),
      std::string("127.0.0.1\0.invalid", 18),
      std::string("\0", 1),
      " ",
      "127.0.0.1 ",
      " 127.0.0.1",
      "[::1]",
      "https://127.0.0.1",
      "127.0.0.1:80",
      "a b.invalid",
      "\xff\xfe.invalid",
      std::string(10'000, 'a'),
      std::string(10'000, '.'),
  };
  for (const std::string& name : names) {
    EXPECT_EQ(makeHostResolver()->addresses(name), std::nullopt) << testing::PrintToString(name);
  }
}

TEST(HostResolverTest, AnswersSeveralThreadsAtOnce) {
  const auto resolver = makeHostResolver();
  const auto check = [&] { return IPUtils::getIP("127.0.0.1", *resolver) == "127.0.0.1"; };
  EXPECT_EQ(successesOnThreads(8, 50, check), 8 * 50);
}

}  // namespace
}  // namespace launcher
