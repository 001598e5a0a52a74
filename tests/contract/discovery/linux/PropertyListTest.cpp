// What the reader on Linux refuses though another platform's may not, and how far a list may go.

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>

#include "discovery/PropertyList.h"
#include "tests/contract/discovery/BinaryList.h"
#include "tests/contract/discovery/DescribedList.h"
#include "tests/contract/linux/MemoryLimit.h"

namespace launcher {
namespace {

using namespace std::string_literals;

std::string repeated(std::string_view text, std::size_t count) {
  std::string all;
  all.reserve(text.size() * count);
  for (std::size_t i = 0; i < count; ++i) all += text;
  return all;
}

/// What was wrong with the bytes; empty where nothing was.
std::string errorOf(std::string_view bytes) { return readPropertyList(bytes).error; }

TEST(PropertyListLinuxTest, TheTextFormIsRefused) {
  for (const char* text : {"hello", "{a = b;}", "(a, b)", "\"a\"", " ", "\n", "a = b;"}) {
    EXPECT_EQ(describedReading(text), "error") << text;
  }
}

TEST(PropertyListLinuxTest, NothingMayFollowTheList) {
  const std::string list = "<plist><string>a</string></plist>";
  ASSERT_EQ(describedReading(list + "\n"), "'a'");
  for (const std::string& rest :
       {"x"s, "\nno such device\n"s, "\0"s, "<array/>"s, "</plist>"s, list, "&amp;"s}) {
    EXPECT_EQ(describedReading(list + rest), "error") << rest;
  }
}

TEST(PropertyListLinuxTest, ControlCharactersAreRefused) {
  for (char control = 0; control < ' '; ++control) {
    const bool blank = control == '\t' || control == '\n' || control == '\r';
    EXPECT_EQ(describedReading("<string>"s + control + "</string>") == "error", !blank)
        << static_cast<int>(control);
    EXPECT_EQ(describedReading("<string>&#" + std::to_string(control) + ";</string>"),
              blank ? "'"s + control + "'" : "error")
        << static_cast<int>(control);
    EXPECT_EQ(describedReading("<array>"s + control + "</array>"), blank ? "[]" : "error")
        << static_cast<int>(control);
  }
  EXPECT_EQ(describedReading("<string>&#xFFFE;</string>"), "error");
}

struct LineEndCase {
  std::string text;
  std::string expected;
};

TEST(PropertyListLinuxTest, EveryEndOfALineIsALineFeed) {
  const LineEndCase cases[] = {
      {"a\nb", "a\nb"},
      {"a\rb", "a\nb"},
      {"a\r\nb", "a\nb"},
      {"\r\r\n\n\r", "\n\n\n\n"},
      {"a&#13;b", "a\rb"},
      {"&#13;\n", "\r\n"},
      {"<![CDATA[a\r\nb\rc]]>", "a\nb\nc"},
      {"\r<![CDATA[\n]]>", "\n\n"},
  };
  for (const auto& [text, expected] : cases) {
    EXPECT_EQ(describedReading("<string>" + text + "</string>"), "'" + expected + "'")
        << testing::PrintToString(text);
  }
}

TEST(PropertyListLinuxTest, KeysAndListsAreNoValues) {
  EXPECT_EQ(describedReading("<array><key>a</key></array>"), "error");
  EXPECT_EQ(describedReading("<dict><key>a</key><key>b</key></dict>"), "error");
  EXPECT_EQ(describedReading("<array><plist><string>a</string></plist></array>"), "error");
}

TEST(PropertyListLinuxTest, DeclarationsAreRefused) {
  EXPECT_EQ(describedReading("<!DOCTYPE plist [<!ENTITY a 'b'>]><string>&a;</string>"), "error");
  EXPECT_EQ(describedReading("<!DOCTYPE plist [<!ENTITY a SYSTEM 'file:///etc/passwd'>]>"
                             "<string>&a;</string>"),
            "error");
  EXPECT_EQ(describedReading("<!DOCTYPE plist [<!ENTITY % a SYSTEM 'http://h/'> %a;]><array/>"),
            "error");
  EXPECT_EQ(describedReading("<!DOCTYPE plist []><array/>"), "error");
}

std::string entityBomb() {
  std::string bomb = "<!DOCTYPE plist [<!ENTITY e0 'bomb'>";
  for (int level = 1; level < 30; ++level) {
    const std::string lower = "&e" + std::to_string(level - 1) + ";";
    bomb += "<!ENTITY e" + std::to_string(level) + " '" + repeated(lower, 10) + "'>";
  }
  return bomb + "]><string>&e29;</string>";
}

TEST(PropertyListLinuxTest, EntityBombsAreRefused) {
  EXPECT_EQ(describedReading(entityBomb()), "error");
}

TEST(PropertyListLinuxTest, LoneSurrogatesAreRefused) {
  EXPECT_EQ(errorOf("\xFE\xFF"s + "\0<\0a\0r\0r\0a\0y\0/\0>"s), "");
  EXPECT_EQ(errorOf("\xFE\xFF"s + "\0<\0a\0r\0r\0a\0y\0 \xD8\x3D\0/\0>"s), "half a character");
  EXPECT_EQ(errorOf("\xFE\xFF"s + "\0<\0a\0r\0r\0a\0y\0 \xDC\x3D\0/\0>"s), "half a character");
}

TEST(PropertyListLinuxTest, Utf16NeedsNoByteOrderMark) {
  EXPECT_EQ(describedReading("<\0a\0r\0r\0a\0y\0/\0>\0"s), "[]");
  EXPECT_EQ(describedReading("\0<\0a\0r\0r\0a\0y\0/\0>"s), "[]");
}

TEST(PropertyListLinuxTest, ValuesMayLieInFiveHundredOthers) {
  const auto nested = [](std::size_t depth) {
    return repeated("<array>", depth) + repeated("</array>", depth);
  };
  EXPECT_EQ(errorOf(nested(512)), "");
  EXPECT_EQ(errorOf(nested(513)), "nested too deeply");
  EXPECT_EQ(errorOf(nested(1'000'000)), "nested too deeply");
  EXPECT_EQ(errorOf(repeated("<array>", 1'000'000)), "nested too deeply");
  EXPECT_EQ(errorOf(repeated("<dict><key>a</key>", 100'000)), "nested too deeply");
}

/// An array in an array and so on, that deep, with references of two bytes.
BinaryList nestedBinaryList(std::uint64_t depth) {
  BinaryList list;
  list.referenceSize = 2;
  for (std::uint64_t level = 1; level < depth; ++level) list.objects.push_back(list.array({level}));
  list.objects.push_back(list.array({}));
  return list;
}

TEST(PropertyListLinuxTest, BinaryValuesMayLieInFiveHundredOthers) {
  EXPECT_EQ(errorOf(nestedBinaryList(512).bytes()), "");
  EXPECT_EQ(errorOf(nestedBinaryList(513).bytes()), "nested too deeply");
  EXPECT_EQ(errorOf(nestedBinaryList(60'000).bytes()), "nested too deeply");
}

TEST(PropertyListLinuxTest, SetsAreReadAsOther) {
  const auto setOf = [](const std::string& item) {
    BinaryList list;
    list.objects = {BinaryList::head(0xC, 1) + '\x01', item};
    return list.bytes();
  };
  EXPECT_EQ(describedReading(setOf(BinaryList::text("a"))), "other");
  EXPECT_EQ(describedReading(setOf("\x5f")), "error");
}

TEST(PropertyListLinuxTest, DepthCountsAlongEveryWay) {
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

/// Each array holds the next one ten times.
BinaryList referenceBomb(std::uint64_t levels) {
  BinaryList list;
  for (std::uint64_t level = 1; level <= levels; ++level) {
    list.objects.push_back(list.array(BinaryList::Numbers(10, level)));
  }
  list.objects.push_back(BinaryList::text("bomb"));
  return list;
}

TEST(PropertyListLinuxTest, ReferenceBombsAreRefused) {
  EXPECT_EQ(errorOf(referenceBomb(5).bytes()), "");
  EXPECT_EQ(errorOf(referenceBomb(6).bytes()), "too many values");
  EXPECT_EQ(errorOf(referenceBomb(200).bytes()), "too many values");
}

TEST(PropertyListLinuxTest, SharedTextsCountEachTime) {
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

TEST(PropertyListLinuxTest, TenThousandImagesAreRead) {
  const PropertyListReading reading = readPropertyList(listing(10'000));
  ASSERT_TRUE(reading.value) << reading.error;
  const PropertyList* images = valueAt(*reading.value->dictionary(), "images");
  EXPECT_EQ(images->array()->size(), 10'000U);
}

TEST(PropertyListLinuxTest, SixteenMegabytesAreRead) {
  constexpr std::size_t kMost = 16U << 20U;
  const std::string list = "<array/>";
  EXPECT_EQ(errorOf(list + std::string(kMost - list.size(), ' ')), "");
  EXPECT_EQ(errorOf(list + std::string(kMost - list.size() + 1, ' ')), "more than 16 MB");
  constexpr std::size_t kFarMore = 100'000'000;
  EXPECT_EQ(errorOf(std::string(kFarMore, ' ')), "more than 16 MB");
}

TEST(PropertyListLinuxTest, FourMegabytesAreConverted) {
  const std::string latin1 = "<?xml version='1.0' encoding='ISO-8859-1'?><array/>";
  const std::string utf16 = "\xFE\xFF\0<\0a\0r\0r\0a\0y\0/\0>"s;
  constexpr std::size_t kMost = 4U << 20U;
  EXPECT_EQ(errorOf(latin1 + std::string(kMost - latin1.size(), ' ')), "");
  EXPECT_EQ(errorOf(latin1 + std::string(kMost, ' ')), "more than 4 MB to convert");
  EXPECT_EQ(errorOf(utf16 + repeated("\0 "s, kMost / 2 - utf16.size())), "");
  EXPECT_EQ(errorOf(utf16 + repeated("\0 "s, kMost / 2)), "more than 4 MB to convert");
}

/// Reads the list with no more than 64 MB to take, and ends the process: with success if the list
/// was refused for another reason than that.
[[noreturn]] void refuseWithin64MB(const std::string& bytes) {
  limitMemoryTo64MB();
  const std::string error = errorOf(bytes);
  std::_Exit(error.empty() || error == "std::bad_alloc" ? 1 : 0);
}

TEST(PropertyListLinuxDeathTest, ListsAreRefusedBeforeTheyTakeMuchMemory) {
  if (!memoryCanBeLimited) GTEST_SKIP() << "the sanitizer needs the address space";
  constexpr std::size_t kMost = 16U << 20U;
  const auto filled = [](std::string_view with) {
    return repeated(with, kMost / with.size() - 10);
  };
  BinaryList sharing;
  sharing.objects = {sharing.array(BinaryList::Numbers(1000, 1)),
                     BinaryList::text(std::string(1 << 20, 'a'))};
  BinaryList wide;
  wide.objects = {wide.array(BinaryList::Numbers(15'000'000, 1)), "\x09"};
  BinaryList endless;
  endless.objects = {endless.array({0})};
  BinaryList immense;
  immense.objects = {BinaryList::head(0xA, std::uint64_t{1} << 63U), BinaryList::text("a")};
  const std::string lists[] = {
      repeated("<array>", 1'000'000),
      repeated(" ", 100'000'000),
      "<!DOCTYPE plist SYSTEM \"file:///dev/zero\"><string>&a;</string>",
      entityBomb(),
      endless.bytes(),
      immense.bytes(),
      "<array>" + filled("<true/>"),
      "<array>" + filled("<array/>"),
      "<array>" + filled("<string>seventeen letters</string>"),
      "<array>" + filled("<array><true/></array>"),
      "<array>" + filled("<dict><key/><true/></dict>"),
      "<string>" + filled("a"),
      "<string>" + filled("&amp;"),
      "\xFF\xFE<\0a\0r\0r\0a\0y\0>\0"s + repeated("<\0t\0r\0u\0e\0/\0>\0"s, 290'000),
      referenceBomb(100).bytes(),
      sharing.bytes(),
      wide.bytes(),
  };
  for (const std::string& list : lists) {
    EXPECT_EXIT(refuseWithin64MB(list), testing::ExitedWithCode(0), "") << list.substr(0, 80);
  }
}

}  // namespace
}  // namespace launcher
