// Texts that nobody types: pasted by mistake, or made to break something. Each is judged like any
// other, and takes no more time than its length explains.

#include <gtest/gtest.h>

#include <string>

#include "net/AddressChecks.h"
#include "net/HostResolver.h"
#include "net/IPUtils.h"

namespace launcher {
namespace {

using namespace std::string_literals;

const std::string million(1'000'000, 'a');

std::string shown(const std::string& text) { return testing::PrintToString(text.substr(0, 60)); }

TEST(HostileTextsTest, LocationsWithStrangeCharactersAreRefused) {
  const auto detector = makeLinkDetector();
  for (const std::string& text : {
           ""s,
           "\0"s,
           "\r\n"s,
           " https://h.example"s,
           "https://h.example\n"s,
           "https://h.example\0"s,
           "\u202ehttps://h.example"s,
           "\ufeffhttps://h.example"s,
           "https://h.example \u202e"s,
           "https://h.example\xed\xa0\x80 a"s,
           "\xff"s,
           "https://"s,
           "://"s,
           "https://\x01"s,
           "\U0001F600 https://h.example"s,
       }) {
    EXPECT_FALSE(isValidURLAddress(text, *detector)) << shown(text);
  }
}

TEST(HostileTextsTest, AMillionCharactersAreJudged) {
  const auto detector = makeLinkDetector();
  EXPECT_FALSE(isValidURLAddress(million, *detector));
  EXPECT_FALSE(isValidURLAddress(std::string(1'000'000, ':'), *detector));
  EXPECT_FALSE(isValidURLAddress(std::string(1'000'000, '/'), *detector));
  EXPECT_FALSE(isValidURLAddress(std::string(1'000'000, '\0'), *detector));
  EXPECT_FALSE(isValidURLAddress("https://h.example/ " + million, *detector));
  EXPECT_TRUE(isValidURLAddress("https://h.example/" + million, *detector));
}

TEST(HostileTextsTest, AddressesWithAnythingElseAreRefused) {
  for (const std::string& text : {
           ""s,
           "\0"s + "10.0.0.5"s,
           " 10.0.0.5"s,
           "10.0.0.5\n"s,
           "\u202e10.0.0.5"s,
           "\u0661\u0660.0.0.5"s,
           "10.0.0.5\xff"s,
           "fe80::1%eth0"s,
           "[::1]"s,
           "0x7f000001"s,
           "2130706433"s,
           "010.0.0.0001"s,
           "1:2:3:4:5:6:7:8:9"s,
           million,
           "10.0.0." + million,
           std::string(1'000'000, ':'),
       }) {
    EXPECT_FALSE(validIPAddress(text)) << shown(text);
  }
}

TEST(HostileTextsTest, ImpossibleHostsHaveNoAddress) {
  const auto resolver = makeHostResolver();
  for (const std::string& host : {""s, "\0"s, " "s, "\n"s, "a..b"s, "."s, std::string(10'000, 'a'),
                                  "%s%n"s, "$(reboot)"s, "-l"s, "\u202e"s, "\xff"s}) {
    EXPECT_EQ(IPUtils::getIP(host, *resolver), std::nullopt) << shown(host);
  }
}

}  // namespace
}  // namespace launcher
