// How deep and how large a property list may be.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "discovery/PropertyList.h"
#include "tests/contract/discovery/BinaryList.h"

namespace launcher {
namespace {

using namespace std::string_literals;

/// What was wrong with the bytes; empty if nothing was.
std::string errorOf(std::string_view bytes) { return readPropertyList(bytes).error; }

TEST(PropertyListLimitsTest, BinaryValuesMustNotLieInManyOthers) {
  EXPECT_EQ(errorOf(nestedBinaryList(100).bytes()), "");
  EXPECT_EQ(errorOf(nestedBinaryList(513).bytes()), "nested too deeply");
  EXPECT_EQ(errorOf(nestedBinaryList(60'000).bytes()), "nested too deeply");
}

TEST(PropertyListLimitsTest, DepthCountsAlongEveryWay) {
  BinaryList list = nestedBinaryList(300);
  const std::uint64_t deep = list.objects.size();
  for (std::uint64_t level = 1; level < 300; ++level) {
    list.objects.push_back(list.array({deep + level}));
  }
  list.objects.push_back(list.array({0}));
  list.objects.push_back(list.array({0, deep}));
  list.top = list.objects.size() - 1;
  EXPECT_EQ(errorOf(list.bytes()), "nested too deeply");
}

TEST(PropertyListLimitsTest, ReferenceBombsAreRefused) {
  EXPECT_EQ(errorOf(referenceBomb(5).bytes()), "");
  EXPECT_EQ(errorOf(referenceBomb(6).bytes()), "too many values");
  EXPECT_EQ(errorOf(referenceBomb(200).bytes()), "too many values");
}

TEST(PropertyListLimitsTest, ACountThatOverflowsIsRefused) {
  constexpr std::uint64_t kLevels = 62;
  BinaryList list;
  for (std::uint64_t level = 1; level <= kLevels; ++level) {
    list.objects.push_back(list.array({level, level}));
  }
  list.objects.emplace_back("\x09");
  // In 64 bits all of them together count as -64 bytes, and two more arrays around them as 64.
  list.objects.push_back(list.array({0}));
  list.objects.push_back(list.array({kLevels + 1}));
  list.top = kLevels + 2;
  EXPECT_EQ(errorOf(list.bytes()), "too many values");
}

TEST(PropertyListLimitsTest, SharedTextsCountEachTime) {
  BinaryList list;
  list.objects = {list.array(BinaryList::Numbers(1000, 1)),
                  BinaryList::text(std::string(1 << 20, 'a'))};
  EXPECT_EQ(errorOf(list.bytes()), "too many values");
  list.objects[1] = BinaryList::text(std::u16string(1 << 19, u'\u00e9'));
  EXPECT_EQ(errorOf(list.bytes()), "too many values");
  list.objects[0] = list.dictionary(BinaryList::Numbers(1000, 1), BinaryList::Numbers(1000, 1));
  EXPECT_EQ(errorOf(list.bytes()), "too many values");
}

/// A listing as another system's tool prints it: some 1,100 bytes and 35 values and keys an image.
std::string listing(int images) {
  std::string list = "<plist><dict><key>images</key><array>";
  for (int image = 0; image < images; ++image) {
    const std::string number = std::to_string(image);
    list += "<dict>";
    for (const char* key :
         {"autodiskmount", "image-encrypted", "removable", "writeable", "other"}) {
      list += "\n\t\t\t<key>"s + key + "</key>\n\t\t\t<true/>";
    }
    list += R"(<key>blockcount</key><integer>204800</integer>
      <key>icon-path</key>
      <string>/System/Library/PrivateFrameworks/DiskImages.framework/Resources/CDiskImage.icns</string>
      <key>image-path</key><string>/Users/me/Downloads/Launcher-)";
    list += number + R"(.dmg</string><key>system-entities</key><array>
      <dict><key>content-hint</key><string>GUID_partition_scheme</string>
      <key>dev-entry</key><string>/dev/disk)";
    list += number + R"(</string></dict><dict><key>content-hint</key><string>Apple_HFS</string>
      <key>dev-entry</key><string>/dev/disk)";
    list += number + R"(s1</string><key>mount-point</key><string>/Volumes/Launcher )";
    list += number + "</string></dict></array></dict>";
  }
  return list + "</array></dict></plist>";
}

TEST(PropertyListLimitsTest, TenThousandImagesAreRead) {
  const PropertyListReading reading = readPropertyList(listing(10'000));
  ASSERT_TRUE(reading.value) << reading.error;
  const PropertyList* images = valueAt(*reading.value->dictionary(), "images");
  EXPECT_EQ(images->array()->size(), 10'000U);
}

TEST(PropertyListLimitsTest, TextsCountBesideTheirValues) {
  std::string values;
  for (int value = 0; value < 350'000; ++value) values += "<true/>";
  EXPECT_EQ(errorOf("<array>" + values + "<string>a</string></array>"), "");
  const std::string text(12U << 20U, 'a');
  EXPECT_EQ(errorOf("<array>" + values + "<string>" + text + "</string></array>"),
            "too many values");
}

TEST(PropertyListLimitsTest, SixteenMegabytesAreRead) {
  constexpr std::size_t kMost = 16U << 20U;
  const std::string list = "<array/>";
  EXPECT_EQ(errorOf(list + std::string(kMost - list.size(), ' ')), "");
  EXPECT_EQ(errorOf(list + std::string(kMost - list.size() + 1, ' ')), "more than 16 MB");
  constexpr std::size_t kFarMore = 100'000'000;
  EXPECT_EQ(errorOf(std::string(kFarMore, ' ')), "more than 16 MB");
}

}  // namespace
}  // namespace launcher
