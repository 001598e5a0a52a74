// Downloaders on Linux record an address alone. It is presented as a list of one.

#include <gtest/gtest.h>

#include <span>
#include <string>

#include "base/Url.h"
#include "discovery/DownloadOrigin.h"
#include "discovery/OriginAttribute.h"
#include "tests/contract/ScratchFolder.h"
#include "tests/contract/discovery/DescribedList.h"
#include "tests/contract/discovery/FileAttributes.h"

namespace launcher {
namespace {

using namespace std::string_literals;

constexpr const char* kOriginUrl = "user.xdg.origin.url";

class OriginAttributeLinuxTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!setAttribute(file_, kOriginUrl, "x")) {
      GTEST_SKIP() << "the file system of " << folder_.path() << " keeps no attributes";
    }
  }

  std::ptrdiff_t probe() const { return attribute_->read(file_, nullptr, 0); }

  std::ptrdiff_t readInto(std::string& buffer) const {
    const auto room = std::as_writable_bytes(std::span(buffer));
    return attribute_->read(file_, room.data(), room.size());
  }

  /// The list that the attribute holds, or "missing".
  std::string list() const {
    const std::ptrdiff_t size = probe();
    if (size < 0) return "missing";
    std::string bytes(static_cast<std::size_t>(size), '\0');
    return readInto(bytes) == size ? describedReading(bytes) : "another size";
  }

  std::string listOf(const std::string& address) const {
    return setAttribute(file_, kOriginUrl, address) ? list() : "not set";
  }

  const ScratchFolder folder_;
  const std::string file_ = makeFile(folder_.file("image.dmg"));
  const std::unique_ptr<OriginAttribute> attribute_ = makeOriginAttribute();
};

TEST_F(OriginAttributeLinuxTest, AnAddressIsAListOfOne) {
  EXPECT_EQ(listOf("https://h/D/F.dmg"), "['https://h/D/F.dmg']");
  EXPECT_EQ(extractWhereAreYouFrom(Url::ofFile(file_), *attribute_), "https://h/D/");
}

TEST_F(OriginAttributeLinuxTest, AddressesComeThroughAsTheyAre) {
  for (const std::string address :
       {"https://h/?a=1&b=<2>", "&amp;", "]]>", " ", "https://h/\u00e9", "\u00e9", "e\u0301",
        "</string></array>", "blob:https://h/1", "\x7f"}) {
    EXPECT_EQ(listOf(address), "['" + address + "']") << address;
  }
  const std::string longOne = "https://h/" + std::string(3000, 'a');
  EXPECT_EQ(listOf(longOne), "['" + longOne + "']");
}

TEST_F(OriginAttributeLinuxTest, WhatIsNoAddressIsMissing) {
  for (const std::string& bytes : {""s, "\0"s, "https://h/\0"s, "https://h/\n"s, "a\tb"s, "\x01"s,
                                   "https://h/\xff"s, "\xc3"s, "\xed\xa0\x80"s}) {
    EXPECT_EQ(listOf(bytes), "missing") << testing::PrintToString(bytes);
  }
}

TEST_F(OriginAttributeLinuxTest, ABufferThatIsTooSmallFails) {
  std::string buffer(static_cast<std::size_t>(probe()) - 1, '.');
  EXPECT_EQ(readInto(buffer), -1);
  EXPECT_EQ(buffer, std::string(buffer.size(), '.'));
}

TEST_F(OriginAttributeLinuxTest, ALargerBufferKeepsItsRest) {
  const std::ptrdiff_t size = probe();
  std::string buffer(static_cast<std::size_t>(size) + 3, '.');
  EXPECT_EQ(readInto(buffer), size);
  EXPECT_TRUE(buffer.ends_with(">\n...")) << buffer;
}

TEST_F(OriginAttributeLinuxTest, AListFromAnotherSystemCountsFirst) {
  ASSERT_TRUE(setAttribute(file_, kOriginUrl, "https://later/D/F"));
  ASSERT_TRUE(setAttribute(file_, kWhereFroms,
                           "<plist><array><string>https://first/D/F</string></array></plist>"));
  EXPECT_EQ(list(), "['https://first/D/F']");

  ASSERT_TRUE(setAttribute(file_, kWhereFroms, "no list"));
  EXPECT_EQ(list(), "error");
  std::string small(3, '.');
  EXPECT_EQ(readInto(small), -1);

  ASSERT_TRUE(setAttribute(file_, kWhereFroms, ""));
  EXPECT_EQ(probe(), 0);
}

TEST_F(OriginAttributeLinuxTest, AListFromAnotherSystemThatHasGrownCountsAllTheSame) {
  ASSERT_TRUE(setAttribute(file_, kWhereFroms, std::string(2'000, 'a')));
  std::string room(1'000, '.');
  EXPECT_EQ(readInto(room), -1);
}

}  // namespace
}  // namespace launcher
