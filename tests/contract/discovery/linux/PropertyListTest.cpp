// What only the reader on Linux does, and how little memory it needs to refuse a list.

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

/// What was wrong with the bytes; empty if nothing was.
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

TEST(PropertyListLinuxTest, DeclarationsAreRefused) {
  EXPECT_EQ(describedReading("<!DOCTYPE plist [<!ENTITY a 'b'>]><string>&a;</string>"), "error");
  EXPECT_EQ(describedReading("<!DOCTYPE plist [<!ENTITY a SYSTEM 'file:///etc/passwd'>]>"
                             "<string>&a;</string>"),
            "error");
  EXPECT_EQ(describedReading("<!DOCTYPE plist [<!ENTITY % a SYSTEM 'http://h/'> %a;]><array/>"),
            "error");
  EXPECT_EQ(describedReading("<!DOCTYPE plist []><array/>"), "error");
}

TEST(PropertyListLinuxTest, UnknownEntitiesAreRefused) {
  const std::string declaredElsewhere = "<!DOCTYPE plist SYSTEM 'a.dtd'>";
  for (const std::string& list : {"<string>&a;</string>"s, "<array>&a;</array>"s, "<array/>&a;"s}) {
    EXPECT_EQ(describedReading(list), "error");
    EXPECT_EQ(describedReading(declaredElsewhere + list), "error") << list;
  }
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

TEST(PropertyListLinuxTest, ReportsTheFirstError) {
  EXPECT_EQ(errorOf("<unknown/>"), "an unknown element");
  EXPECT_EQ(errorOf("<array><string>a<b/></string>c</array>"), "an element or a comment in a text");
  EXPECT_EQ(errorOf("<array><integer>1x</integer><unknown/>"), "no integer");
}

TEST(PropertyListLinuxTest, LoneSurrogatesAreRefused) {
  EXPECT_EQ(errorOf("\xFE\xFF"s + "\0<\0a\0r\0r\0a\0y\0/\0>"s), "");
  for (const char* half : {"\xD8\x3D", "\xDC\x3D"}) {
    EXPECT_EQ(errorOf("\xFE\xFF"s + "\0<\0a\0r\0r\0a\0y\0 "s + half + "\0/\0>"s),
              "bytes that are no UTF-16BE");
  }
}

TEST(PropertyListLinuxTest, AnOddByteAfterTheListDoesNotMatter) {
  EXPECT_EQ(errorOf("\xFE\xFF"s + "\0<\0a\0r\0r\0a\0y\0/\0>\0"s), "");
}

TEST(PropertyListLinuxTest, Utf16NeedsAByteOrderMark) {
  const std::string declared = "<?xml version='1.0' encoding='UTF-16'?><array/>";
  for (const bool highFirst : {true, false}) {
    std::string bytes;
    for (const char c : declared) bytes += highFirst ? "\0"s + c : c + "\0"s;
    EXPECT_EQ(errorOf(bytes), "a NUL in a text");
    EXPECT_EQ(describedReading((highFirst ? "\xFE\xFF" : "\xFF\xFE") + bytes), "[]");
  }
  EXPECT_EQ(errorOf("<\0a\0r\0r\0a\0y\0/\0>\0"s), "a NUL in a text");
}

struct EncodingCase {
  std::string name;
  std::string bytes;
  std::string expected;
};

TEST(PropertyListLinuxTest, ReadsEveryEncodingOfTheDesktop) {
  const EncodingCase cases[] = {
      {"macintosh", "\x8e", "'\u00e9'"},
      {"EUC-JP", "\xa4\xa2", "'\u3042'"},
      {"gb18030", "\x90\x30\x81\x30", "'\U00010000'"},
      {"utf-8", "\u00e9", "'\u00e9'"},
      {"us-ascii", "\u00e9", "error"},
      {"EUC-JP", "\xa4", "error"},
      {"utf-16", "a", "error"},
      {"EUC-JP//IGNORE", "a", "error"},
      {"UTF-8" + std::string(1'000'000, ' '), "a", "error"},
  };
  for (const auto& [name, bytes, expected] : cases) {
    const std::string list = std::string("<?xml version='1.0' encoding='")
                                 .append(name)
                                 .append("'?><string>")
                                 .append(bytes)
                                 .append("</string>");
    EXPECT_EQ(describedReading(list), expected) << name;
  }
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

TEST(PropertyListLinuxTest, BinaryValuesMayLieInFiveHundredOthers) {
  EXPECT_EQ(errorOf(nestedBinaryList(512).bytes()), "");
}

TEST(PropertyListLinuxTest, DoesNotCheckValuesThatNobodyReads) {
  for (const std::string& object :
       {"\x07"s, "\x15"s + std::string(32, '\0'), "\x21"s + std::string(2, '\0'),
        "\x84"s + std::string(5, '\xff')}) {
    BinaryList list;
    list.objects = {object};
    EXPECT_EQ(describedReading(list.bytes()), "other");
  }
  EXPECT_EQ(describedReading("<data>\u00e9</data>"), "other");
  EXPECT_EQ(describedReading("<false> </false>"), "other");
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

TEST(PropertyListLinuxTest, SixteenMegabytesMayComeOfAConversion) {
  const std::string latin1 = "<?xml version='1.0' encoding='ISO-8859-1'?><data>";
  const std::string end = "</data>";
  constexpr std::size_t kMost = 16U << 20U;
  const std::size_t room = (kMost - latin1.size() - end.size()) / 2;
  EXPECT_EQ(errorOf(latin1 + std::string(room, '\xe9') + end), "");
  EXPECT_EQ(errorOf(latin1 + std::string(room + 1, '\xe9') + end), "more than 16 MB");
}

/// Attributes, each with a name of its own.
std::string manyAttributes(int count) {
  std::string attributes;
  for (int number = 0; number < count; ++number) {
    attributes += " a" + std::to_string(number) + "=''";
  }
  return attributes;
}

TEST(PropertyListLinuxTest, ManyAttributesAreRefused) {
  EXPECT_EQ(errorOf("<array" + manyAttributes(10'000) + "/>"), "");
  EXPECT_EQ(errorOf("<array" + manyAttributes(10'001) + "/>"), "too many attributes");
}

TEST(PropertyListLinuxTest, LongMarkupIsRead) {
  for (const std::string& markup : {"<array a='" + std::string(2'000'000, 'a') + "'/>",
                                    "<!--" + std::string(2'000'000, 'a') + "--><array/>",
                                    "<?a " + std::string(2'000'000, 'a') + "?><array/>"}) {
    EXPECT_EQ(errorOf(markup), "") << markup.substr(0, 80);
  }
}

/// Reads the list with at most 64 MB more memory, and ends the process. Exits with success if the
/// list was refused for another reason than lack of memory.
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
      "<!DOCTYPE plist [<!ELEMENT a " + filled("("),
      "<!DOCTYPE plist [" + filled("<!ELEMENT a ANY>"),
      "<!DOCTYPE plist [" + filled("<!ATTLIST a b CDATA ''>"),
      "<!DOCTYPE plist [" + filled("<!ENTITY a ''>"),
      "<!DOCTYPE plist [" + filled("<!NOTATION a SYSTEM ''>"),
      endless.bytes(),
      immense.bytes(),
      "<array>" + filled("<true/>"),
      "<array>" + filled("<array/>"),
      "<array>" + filled("<string>seventeen letters</string>"),
      "<array>" + filled("<array><true/></array>"),
      "<array>" + filled("<dict><key/><true/></dict>"),
      "<dict>" + filled("<key/><true/>"),
      "<string>" + filled("a"),
      "<string>" + filled("&amp;"),
      "\xFF\xFE<\0a\0r\0r\0a\0y\0>\0"s + filled("<\0t\0r\0u\0e\0/\0>\0"s),
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
