#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "discovery/DownloadOrigin.h"
#include "tests/doubles/FakeOriginAttribute.h"

namespace launcher {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;

const std::string kFile = "/images/a b.dmg";

std::string list(const std::string& element) { return "<plist>" + element + "</plist>"; }

std::string listOf(const std::string& address) {
  return list("<array><string>" + address + "</string></array>");
}

/// A binary list of an array of one text, of at most 14 characters.
std::string binaryListOf(const std::string& address) {
  const char size = static_cast<char>(address.size());
  return "bplist00\xA1\x01" + std::string(1, static_cast<char>(0x50 + size)) + address +
         "\x08\x0A" + std::string(6, '\0') + "\x01\x01" + "\0\0\0\0\0\0\0\x02"s +
         std::string(8, '\0') + std::string(7, '\0') + static_cast<char>(11 + size);
}

class DownloadOriginTest : public testing::Test {
 protected:
  std::optional<std::string> extract() {
    return extractWhereAreYouFrom(Url::ofFile(kFile), attribute_);
  }

  std::optional<std::string> extract(const std::string& value) {
    attribute_.values = {{kFile, value}};
    return extract();
  }

  FakeOriginAttribute attribute_;
};

TEST_F(DownloadOriginTest, RemovesTheLastPathComponentOfTheFirstAddress) {
  const struct {
    std::string address;
    std::string location;
  } cases[] = {
      {"https://h/D/F", "https://h/D/"},
      {"http://h/D/F.dmg", "http://h/D/"},
      {"https://h:8443/D/E/F.dmg", "https://h:8443/D/E/"},
      {"https://h/F", "https://h/"},
      {"https://h/D/F?a=b", "https://h/D/?a=b"},
      {"HTTPS://H/D/F", "HTTPS://H/D/"},
      {"https://h/D/a b", "https://h/D/"},
      {"https://h/D/F?a=[b|c]", "https://h/D/?a=%5Bb%7Cc%5D"},
      {"https://h/\u00e9/F", "https://h/%C3%A9/"},
  };
  for (const auto& [address, location] : cases) EXPECT_EQ(extract(listOf(address)), location);
}

TEST_F(DownloadOriginTest, ReadsBothForms) {
  EXPECT_EQ(extract(binaryListOf("https://h/D/F")), "https://h/D/");
}

TEST_F(DownloadOriginTest, ReadsTheAttributeOfTheFileOnce) {
  extract(listOf("https://h/D/F"));
  EXPECT_THAT(attribute_.paths, ElementsAre(kFile, kFile)) << "a probe and a reading";
}

TEST_F(DownloadOriginTest, AFileWithoutTheAttributeGivesNothing) {
  EXPECT_EQ(extract(), std::nullopt);
  EXPECT_THAT(attribute_.paths, ElementsAre(kFile));
}

TEST_F(DownloadOriginTest, OnlyTheFirstTextCounts) {
  const struct {
    std::string element;
    std::optional<std::string> location;
  } cases[] = {
      {"<array><string>https://h/D/F</string><string>https://g/</string></array>", "https://h/D/"},
      {"<array><string>https://h/D/F</string><string>no address</string></array>", "https://h/D/"},
      {"<array><string>no address</string><string>https://h/D/F</string></array>", std::nullopt},
      {"<array><string></string><string>https://h/D/F</string></array>", std::nullopt},
  };
  for (const auto& [element, location] : cases) EXPECT_EQ(extract(list(element)), location);
}

TEST_F(DownloadOriginTest, OtherShapesGiveNothing) {
  for (const char* element : {
           "<array/>",
           "<string>https://h/D/F</string>",
           "<dict/>",
           "<dict><key>0</key><string>https://h/D/F</string></dict>",
           "<true/>",
           "<array><string>https://h/D/F</string><integer>1</integer></array>",
           "<array><integer>1</integer><string>https://h/D/F</string></array>",
           "<array><string>https://h/D/F</string><array/></array>",
           "<array><string>https://h/D/F</string><true/></array>",
           "<array><array><string>https://h/D/F</string></array></array>",
       }) {
    EXPECT_EQ(extract(list(element)), std::nullopt) << element;
  }
}

TEST_F(DownloadOriginTest, WhatIsNoListGivesNothing) {
  for (const std::string& value : {""s, "<plist>"s, "\0"s, listOf("https://h/D/F").substr(1)}) {
    EXPECT_EQ(extract(value), std::nullopt) << value;
  }
}

TEST_F(DownloadOriginTest, AnEmptyAttributeIsReadAllTheSame) {
  EXPECT_EQ(extract(""), std::nullopt);
  EXPECT_THAT(attribute_.buffers, ElementsAre(""));
}

TEST_F(DownloadOriginTest, TheBufferHasTheProbedSizeAndIsZero) {
  attribute_.probeAnswer = 500;
  extract(listOf("https://h/D/F"));
  EXPECT_THAT(attribute_.buffers, ElementsAre(std::string(500, '\0')));
}

TEST_F(DownloadOriginTest, AnAttributeThatGrowsInBetweenGivesNothing) {
  attribute_.probeAnswer = std::ssize(listOf("https://h/D/F")) - 1;
  EXPECT_EQ(extract(listOf("https://h/D/F")), std::nullopt);
}

TEST_F(DownloadOriginTest, AnAttributeThatShrinksInBetweenIsReadWithTheZerosBehindIt) {
  const std::string value = binaryListOf("https://h/D/F");
  attribute_.probeAnswer = std::ssize(value) + 1;
  EXPECT_EQ(extract(value), std::nullopt);
}

TEST_F(DownloadOriginTest, TheNumberOfBytesReadDoesNotCount) {
  for (const std::ptrdiff_t answer : {0, 1, 1000}) {
    attribute_.readAnswer = answer;
    EXPECT_EQ(extract(binaryListOf("https://h/D/F")), "https://h/D/") << answer;
  }
}

TEST_F(DownloadOriginTest, AnAttributeThatVanishesInBetweenGivesNothing) {
  attribute_.readAnswer = -1;
  EXPECT_EQ(extract(listOf("https://h/D/F")), std::nullopt);
}

TEST_F(DownloadOriginTest, ALargeAttributeIsRead) {
  const std::string page = "https://h/" + std::string(1'000'000, 'a');
  EXPECT_EQ(extract("<array><string>https://h/D/F</string><string>" + page + "</string></array>"),
            "https://h/D/");
}

TEST_F(DownloadOriginTest, AnAbsurdSizeGivesNothing) {
  for (const std::ptrdiff_t size : {(std::ptrdiff_t{16} << 20) + 1, std::ptrdiff_t{1} << 40,
                                    std::numeric_limits<std::ptrdiff_t>::max()}) {
    attribute_.probeAnswer = size;
    EXPECT_EQ(extract(listOf("https://h/D/F")), std::nullopt) << size;
  }
  EXPECT_THAT(attribute_.buffers, ElementsAre());
}

TEST_F(DownloadOriginTest, AddressesThatAreNoUrlGiveNothing) {
  for (const char* address :
       {"", " ", "no address", "https://h /F", "https://b\u00fccher.example/F", "ftp://h/a b"}) {
    EXPECT_EQ(extract(listOf(address)), std::nullopt) << address;
  }
}

}  // namespace
}  // namespace launcher
