#include <gtest/gtest.h>

#include <string>

#include "net/AddressChecks.h"
#include "tests/doubles/FakeLinkDetector.h"

namespace launcher {
namespace {

using namespace std::string_view_literals;

std::optional<std::string> textOf(const std::optional<Url>& url) {
  if (!url) return std::nullopt;
  return url->absoluteString();
}

std::optional<std::string> refusing(std::string_view text, const LinkDetector& detector) {
  return textOf(validURLAddress(text, InsecureScheme::refused, detector));
}

std::optional<std::string> allowing(std::string_view text, const LinkDetector& detector) {
  return textOf(validURLAddress(text, InsecureScheme::allowed, detector));
}

struct SearchCase {
  std::string_view text;
  std::u16string_view units;
  std::size_t length;
};

TEST(AddressChecksTest, SearchesAsManyUnitsAsTheTextHasCharacters) {
  constexpr SearchCase kCases[] = {
      {"", u"", 0},
      {"https://h", u"https://h", 9},
      {"\U0001f600 https://h", u"\U0001f600 https://h", 11},
      {"e\u0301 h", u"e\u0301 h", 3},
      {"a\r\nb", u"a\r\nb", 3},
      {"a\0b"sv, u"a\0b"sv, 3},
      {"\xff", u"\ufffd", 1},
  };
  for (const auto& [text, units, length] : kCases) {
    const FakeLinkDetector detector;
    isValidURLAddress(text, detector);
    EXPECT_EQ(detector.lastText, units) << testing::PrintToString(text);
    EXPECT_EQ(detector.lastLength, length) << testing::PrintToString(text);
    validURLAddress(text, InsecureScheme::allowed, detector);
    EXPECT_EQ(detector.lastText, units) << testing::PrintToString(text);
    EXPECT_EQ(detector.lastLength, length) << testing::PrintToString(text);
    EXPECT_EQ(detector.searches, 2) << testing::PrintToString(text);
  }
}

TEST(AddressChecksTest, NoMatchIsNoAddress) {
  const FakeLinkDetector detector;
  EXPECT_FALSE(isValidURLAddress("", detector));
  EXPECT_FALSE(isValidURLAddress("https://h", detector));
  EXPECT_EQ(refusing("https://h", detector), std::nullopt);
  EXPECT_EQ(allowing("https://h", detector), std::nullopt);
}

TEST(AddressChecksTest, AMatchWithoutUrlIsNoAddress) {
  const FakeLinkDetector detector(LinkMatch{std::nullopt, 0, 9});
  EXPECT_FALSE(isValidURLAddress("https://h", detector));
  EXPECT_EQ(allowing("https://h", detector), std::nullopt);
}

TEST(AddressChecksTest, AMatchWithoutSchemeIsNoAddress) {
  const FakeLinkDetector detector(linkMatch("//h", 0, 9));
  EXPECT_FALSE(isValidURLAddress("https://h", detector));
  EXPECT_EQ(allowing("https://h", detector), std::nullopt);
}

struct SchemeCase {
  std::string_view url;
  bool valid;
  bool accepted;
  bool acceptedInsecure;
};

TEST(AddressChecksTest, OneCheckTakesSchemesThatBeginWithHttpTheOtherWholeSchemes) {
  constexpr SchemeCase kCases[] = {
      {"https://h", true, true, true},    {"http://h", true, false, true},
      {"httpx://h", true, false, false},  {"http-custom://h", true, false, false},
      {"httpss://h", true, false, false}, {"HTTPS://h", false, false, false},
      {"Https://h", false, false, false}, {"HTTP://h", false, false, false},
      {"htt://h", false, false, false},   {"xhttp://h", false, false, false},
      {"ftp://h", false, false, false},   {"mailto:a@h", false, false, false},
  };
  for (const auto& [url, valid, accepted, acceptedInsecure] : kCases) {
    const FakeLinkDetector detector(linkMatch(url, 0, url.size()));
    EXPECT_EQ(isValidURLAddress(url, detector), valid) << url;
    EXPECT_EQ(refusing(url, detector).has_value(), accepted) << url;
    EXPECT_EQ(allowing(url, detector).has_value(), acceptedInsecure) << url;
  }
}

TEST(AddressChecksTest, TheResultIsTheUrlOfTheMatchNotTheText) {
  const FakeLinkDetector detector(linkMatch("https://found/", 0, 5));
  EXPECT_EQ(refusing("typed", detector), "https://found/");
  EXPECT_EQ(allowing("typed", detector), "https://found/");
}

struct LengthCase {
  std::string_view text;
  std::size_t location;
  std::size_t length;
  bool valid;
};

TEST(AddressChecksTest, TheMatchMustBeAsLongAsTheTextHasCharacters) {
  constexpr LengthCase kCases[] = {
      {"https://h", 0, 9, true},
      {"https://h ", 0, 9, false},
      {" https://h", 1, 9, false},
      {"word https://h", 5, 9, false},
      {"https://h https://i", 0, 9, false},
      {"https://h", 0, 8, false},
      {"https://h", 0, 10, false},
      {"https://h", 3, 9, true},               // the location is not compared
      {"https://h/\U0001f600", 0, 12, false},  // one character of two units
      {"https://h/\U0001f600", 0, 11, true},
      {"https://h/e\u0301", 0, 12, false},
      {"https://h/e\u0301", 0, 11, true},
  };
  for (const auto& [text, location, length, valid] : kCases) {
    const FakeLinkDetector detector(linkMatch("https://h", location, length));
    EXPECT_EQ(isValidURLAddress(text, detector), valid) << text << " " << location << " " << length;
    EXPECT_EQ(refusing(text, detector), "https://h") << text;
  }
}

struct IpCase {
  std::string_view text;
  bool valid;
};

TEST(AddressChecksTest, KnowsNumericAddresses) {
  constexpr IpCase kCases[] = {
      {"10.0.0.5", true},
      {"0.0.0.0", true},
      {"255.255.255.255", true},
      {"::1", true},
      {"::", true},
      {"fe80::1", true},
      {"FE80::ABCD", true},
      {"2001:db8:1:2:3:4:5:6", true},
      {"::ffff:10.0.0.5", true},
      {"64:ff9b::10.0.0.5", true},
      {"", false},
      {" ", false},
      {"10.0.0", false},
      {"10.0.0.256", false},
      {"10.0.0.5 ", false},
      {" 10.0.0.5", false},
      {"10.0.0.5\n", false},
      {"10.0.0.5.6", false},
      {"10.0.0.5:80", false},
      {"0xa.0.0.5", false},
      {"167772165", false},
      {"::1 ", false},
      {"[::1]", false},
      {":::1", false},
      {"1::2::3", false},
      {"12345::", false},
      {"2001:db8:1:2:3:4:5", false},
      {"2001:db8:1:2:3:4:5:6:7", false},
      {"::ffff:10.0.0", false},
      {"server.example", false},
      {"https://10.0.0.5", false},
      {"\uff11\uff10.0.0.5", false},
      {"10\u30020\u30020\u30025", false},
      {"\xff", false},
  };
  for (const auto& [text, valid] : kCases) EXPECT_EQ(validIPAddress(text), valid) << text;
}

TEST(AddressChecksTest, AnAddressTextEndsAtItsFirstNul) {
  EXPECT_TRUE(validIPAddress("10.0.0.5\0"sv));
  EXPECT_TRUE(validIPAddress("::1\0 and more"sv));
  EXPECT_FALSE(validIPAddress("\00010.0.0.5"sv));
  EXPECT_FALSE(validIPAddress("10.0\0.0.5"sv));
}

TEST(AddressChecksTest, LongTextsAreNoAddresses) {
  EXPECT_FALSE(validIPAddress(std::string(1'000'000, '1')));
  EXPECT_FALSE(validIPAddress(std::string(1'000'000, ':')));
}

}  // namespace
}  // namespace launcher
