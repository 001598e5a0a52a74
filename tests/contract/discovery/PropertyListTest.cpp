#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "discovery/PropertyList.h"
#include "tests/contract/discovery/BinaryList.h"
#include "tests/contract/discovery/DescribedList.h"
#include "tests/contract/discovery/FoundationLists.h"

namespace launcher {
namespace {

using namespace std::string_literals;

struct Case {
  std::string given;
  std::string_view expected;
};

constexpr std::string_view kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
constexpr std::string_view kDocumentType =
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n";

/// A whole document around a value.
std::string document(std::string_view value) {
  return std::string(kDeclaration)
      .append(kDocumentType)
      .append("<plist version=\"1.0\">\n")
      .append(value)
      .append("\n</plist>\n");
}

void expectReading(const std::string& bytes, std::string_view expected) {
  EXPECT_EQ(describedReading(bytes), expected) << "read: " << bytes.substr(0, 2000);
}

/// Reads each value in a document of its own.
void expectValues(std::initializer_list<Case> cases) {
  for (const auto& [value, expected] : cases) expectReading(document(value), expected);
}

void expectDocuments(std::initializer_list<Case> cases) {
  for (const auto& [bytes, expected] : cases) expectReading(bytes, expected);
}

TEST(PropertyListTest, ReadsAListing) {
  expectValues({
      {"<dict><key>images</key><array>"
       "<dict><key>image-path</key><string>/a.dmg</string>"
       "<key>system-entities</key><array>"
       "<dict><key>dev-entry</key><string>/dev/disk2</string></dict>"
       "<dict><key>dev-entry</key><string>/dev/disk2s1</string>"
       "<key>mount-point</key><string>/Volumes/A</string></dict>"
       "</array></dict>"
       "</array></dict>",
       "{images: [{image-path: '/a.dmg', system-entities: [{dev-entry: '/dev/disk2'}, "
       "{dev-entry: '/dev/disk2s1', mount-point: '/Volumes/A'}]}]}"},
  });
}

TEST(PropertyListTest, ReadsWhatTheFoundationReads) {
  const std::vector<FoundationList> lists = foundationLists();
  ASSERT_GT(lists.size(), 100U);
  for (const auto& [systems, bytes, expected] : lists) {
    if (systems != "both") continue;
    EXPECT_EQ(visible(describedReading(bytes)), expected) << visible(bytes);
  }
}

TEST(PropertyListTest, ReadsEveryKindOfValue) {
  expectValues({
      {"<string>text</string>", "'text'"},
      {"<string></string>", "''"},
      {"<string/>", "''"},
      {"<string> a\n\tb </string>", "' a\n\tb '"},
      {"<array></array>", "[]"},
      {"<array/>", "[]"},
      {"<array><string>a</string><array><string>b</string></array></array>", "['a', ['b']]"},
      {"<dict></dict>", "{}"},
      {"<dict/>", "{}"},
      {"<dict><key/><string>a</string></dict>", "{: 'a'}"},
      {"<true/>", "other"},
      {"<false></false>", "other"},
      {"<array><true/><string>a</string></array>", "[other, 'a']"},
      {"<data>\n  SGVs bG8=\n</data>", "other"},
      {"<data></data>", "other"},
  });
}

TEST(PropertyListTest, ReadsNumbersAndDatesAsOther) {
  for (const char* number : {"0", "-1", "+1", " 12", "- 7", "0x1F", "-0Xff", "007",
                             "18446744073709551615", "-9223372036854775808"}) {
    expectReading(document("<integer>" + std::string(number) + "</integer>"), "other");
  }
  for (const char* number : {"0", "-1.5", "+2.5e-3", "nan", "+infinity", "-inf", "1e400"}) {
    expectReading(document("<real>" + std::string(number) + "</real>"), "other");
  }
  for (const char* date : {"2024-02-29T23:59:59Z", "-0001-01-01T00:00:00Z"}) {
    expectReading(document("<date>" + std::string(date) + "</date>"), "other");
  }
}

TEST(PropertyListTest, WrongNumbersAndDatesAreNoList) {
  for (const char* number :
       {"", " ", "-", "0x", "1.5", "1a", "0xg", "twelve", "1 ", "18446744073709551616"}) {
    expectReading(document("<integer>" + std::string(number) + "</integer>"), "error");
  }
  for (const char* number : {"", "-", "one", "1.5x", "."}) {
    expectReading(document("<real>" + std::string(number) + "</real>"), "error");
  }
  for (const char* date :
       {"", "2024-02-29", "2024-02-29T23:59:59", "2024-2-29T23:59:59Z", "2024-02-29 23:59:59Z",
        "2024-02-29T23:59:59Zx", "20x4-02-29T23:59:59Z"}) {
    expectReading(document("<date>" + std::string(date) + "</date>"), "error");
  }
  expectValues({
      {"<integer/>", "error"},
      {"<real/>", "error"},
      {"<date/>", "error"},
      {"<true>yes</true>", "error"},
  });
}

TEST(PropertyListTest, ResolvesReferencesInTexts) {
  expectValues({
      {"<string>&lt;&gt;&amp;&apos;&quot;</string>", "'<>&'\"'"},
      {"<string>&amp;lt;</string>", "'&lt;'"},
      {"<string>a&#65;b&#x42;&#x1F600;&#10;</string>", "'aAbB\U0001f600\n'"},
      {"<string>a<![CDATA[<b>&lt;]]]]>c</string>", "'a<b>&lt;]]c'"},
      {"<dict><key>&#x65;&#x301;</key><string>a</string></dict>", "{e\u0301: 'a'}"},
  });
}

TEST(PropertyListTest, WrongReferencesAreNoList) {
  expectValues({
      {"<string>&unknown;</string>", "error"},
      {"<string>&;</string>", "error"},
      {"<string>&</string>", "error"},
      {"<string>&lt</string>", "error"},
      {"<string>&LT;</string>", "error"},
      {"<string>&#12a;</string>", "error"},
      {"<string>&#xD800;</string>", "error"},
      {"<string>&#x110000;</string>", "error"},
      {"<string>&#x100000041;</string>", "error"},
      {"<string><![CDATA[a</string>", "error"},
      {"<string><![cdata[a]]></string>", "error"},
  });
}

TEST(PropertyListTest, KeepsNonAsciiTexts) {
  expectValues({
      {"<string>\u00e9 e\u0301 \u65e5\u672c \U0001f600</string>",
       "'\u00e9 e\u0301 \u65e5\u672c \U0001f600'"},
  });
}

TEST(PropertyListTest, IllFormedTextsAreNoList) {
  expectValues({
      {"<string>\xff</string>", "error"},
      {"<string>\xc3</string>", "error"},
      {"<string>\xed\xa0\x80</string>", "error"},
      {"<dict><key>\xff</key><string>a</string></dict>", "error"},
  });
}

TEST(PropertyListTest, TheLaterOfTwoEqualKeysCounts) {
  expectValues({
      {"<dict><key>a</key><string>1</string><key>b</key><string>2</string>"
       "<key>a</key><string>3</string></dict>",
       "{a: '3', b: '2'}"},
  });
}

TEST(PropertyListTest, WrongStructureIsNoList) {
  expectValues({
      {"", "error"},
      {"text", "error"},
      {"<string>a</string><string>b</string>", "error"},
      {"<dict><key>a</key></dict>", "error"},
      {"<dict><string>a</string></dict>", "error"},
      {"<dict><key>a</key><string>b</string><key>c</key></dict>", "error"},
      {"<dict>text</dict>", "error"},
      {"<array>text</array>", "error"},
      {"<array><string>a</array></string>", "error"},
      {"<array><string>a</string>", "error"},
      {"<string>a</String>", "error"},
      {"<string>a</strings>", "error"},
      {"<string>a<string>b</string></string>", "error"},
      {"<string>a<!-- b --></string>", "error"},
      {"<unknown/>", "error"},
      {"<Dict/>", "error"},
      {"<dictionary/>", "error"},
      {"<>", "error"},
      {"</array>", "error"},
  });
}

TEST(PropertyListTest, ReadsTheMarkupAroundTheList) {
  const std::string list = "<plist><string>a</string></plist>";
  expectDocuments({
      {list, "'a'"},
      {"<string>a</string>", "'a'"},
      {"\xEF\xBB\xBF" + document("<string>a</string>"), "'a'"},
      {std::string(kDocumentType) + list, "'a'"},
      {"<!DOCTYPE plist SYSTEM 'file:///etc/passwd'>" + list, "'a'"},
      {"<!DOCTYPE plist>\n" + list, "'a'"},
      {"<!-- <string>b</string> -->" + list, "'a'"},
      {"\n\t \r" + list, "'a'"},
      {"<plist><!-- - --><?do nothing?><string>a</string><!----></plist>", "'a'"},
      {"<plist\n version = '1.0' note=\"a\"><string >a</string\n></plist >", "'a'"},
      {"<array><string lang='en'/></array >", "['']"},
      {list + "\n<!-- end -->\n", "'a'"},
  });
}

TEST(PropertyListTest, WhatIsNoListGivesAnError) {
  expectDocuments({
      {"", "error"},
      {"\0"s, "error"},
      {"<", "error"},
      {"<plist/>", "error"},
      {"<plist></plist>", "error"},
      {"<?xml version=\"1.0\"?>", "error"},
      {"<!-- a", "error"},
      {"<?xml", "error"},
      {"<!DOCTYPE plist", "error"},
      {"<!ELEMENT plist>", "error"},
      {"tool: no such device\n" + document("<array/>"), "error"},
      {document("<array>\ntool: no such device\n</array>"), "error"},
      {"<html><body/></html>", "error"},
      {std::string(1000, '<'), "error"},
  });
}

TEST(PropertyListTest, ATextCutOffAnywhereIsNoList) {
  const std::string whole = document(
      "<dict><key>a&amp;</key><array><string><![CDATA[b]]></string><integer>1</integer>"
      "<date>2024-02-29T23:59:59Z</date><true/></array></dict>");
  const std::size_t end = whole.rfind('>') + 1;
  ASSERT_EQ(describedReading(whole), "{a&: ['b', other, other, other]}");
  for (std::size_t size = 0; size < end; ++size) expectReading(whole.substr(0, size), "error");
}

/// The units' bytes, the low or the high one first.
std::string inBytes(std::u16string_view units, bool highFirst) {
  std::string bytes;
  for (const char16_t unit : units) {
    const std::string pair = numberBytes(unit, 2);
    bytes += highFirst ? pair : std::string(pair.rbegin(), pair.rend());
  }
  return bytes;
}

TEST(PropertyListTest, ReadsUtf16) {
  const std::u16string list =
      u"<?xml version=\"1.0\" "
      u"encoding=\"UTF-16\"?><plist><string>\u00e9\U0001f600</string></plist>";
  for (const bool highFirst : {true, false}) {
    expectReading(inBytes(u"\ufeff" + list, highFirst), "'\u00e9\U0001f600'");
    expectReading(inBytes(u"\ufeff<plist><string>a", highFirst), "error");
  }
}

TEST(PropertyListTest, ReadsTheEncodingThatItDeclares) {
  const auto declared = [](const std::string& encoding, const std::string& text) {
    return "<?xml version='1.0' encoding=" + encoding + "?><string>" + text + "</string>";
  };
  expectDocuments({
      {declared("'utf-8'", "\u00e9"), "'\u00e9'"},
      {declared("\"US-ASCII\"", "e"), "'e'"},
      {declared("\"ISO-8859-1\"", "\xe9"), "'\u00e9'"},
      {declared("'no-such-encoding'", "e"), "error"},
  });
}

TEST(PropertyListTest, ReadsBinaryLists) {
  BinaryList list;
  list.objects = {list.dictionary({1, 2}, {3, 4}), BinaryList::text("images"),
                  BinaryList::text(u"\u00e9\U0001f600"), list.array({4, 3}),
                  BinaryList::text("a longer text of more than fifteen bytes")};
  list.objects[3] = list.array({4, 4});
  expectReading(list.bytes(),
                "{images: ['a longer text of more than fifteen bytes', "
                "'a longer text of more than fifteen bytes'], "
                "\u00e9\U0001f600: 'a longer text of more than fifteen bytes'}");
}

/// A binary list of one object.
std::string single(std::string_view object) {
  BinaryList list;
  list.objects = {std::string(object)};
  return list.bytes();
}

TEST(PropertyListTest, ReadsEveryKindOfBinaryObject) {
  expectDocuments({
      {single(BinaryList::text("")), "''"},
      {single(BinaryList::text("text")), "'text'"},
      {single("\x5f\x10\x04text"), "'text'"},
      {single("\x5f\x12\0\0\0\x04text"s), "'text'"},
      {single("\x5f\x14\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x04text"s), "'text'"},
      {single("\xA0"), "[]"},
      {single("\xD0"), "{}"},
      {single("\x08"), "other"},
      {single("\x09"), "other"},
      {single("\x10\x2a"), "other"},
      {single("\x13"s + std::string(8, '\xff')), "other"},
      {single("\x14"s + std::string(16, '\0')), "other"},
      {single("\x22"s + std::string(4, '\0')), "other"},
      {single("\x23"s + std::string(8, '\0')), "other"},
      {single("\x33"s + std::string(8, '\0')), "other"},
      {single("\x44"s + "data"), "other"},
      {single("\x80\x07"), "other"},
  });
}

TEST(PropertyListTest, WrongBinaryObjectsAreNoList) {
  expectDocuments({
      {single("\x70"), "error"},
      {single("\x90"), "error"},
      {single("\xF0"), "error"},
      {single("\x55text"), "error"},
      {single("\x63t"), "error"},
      {single("\x61t"), "error"},
      {single("\x5f\x51\x04text"), "error"},
      {single("\x5f\x13\x80\0\0\0\0\0\0\0text"s), "error"},
      {single("\x6f\x13\x80\0\0\0\0\0\0\0text"s), "error"},
      {single("\xAf\x13\x80\0\0\0\0\0\0\0text"s), "error"},
      {single("\xDf\x13\x80\0\0\0\0\0\0\0text"s), "error"},
      {single("\xDf\x13\x40\0\0\0\0\0\0\0text"s), "error"},
      {single("\x4f\x13\x7f\xff\xff\xff\xff\xff\xff\xff"s), "error"},
  });
}

TEST(PropertyListTest, ReferencesMayHaveAnySize) {
  for (std::size_t size = 1; size <= 8; ++size) {
    BinaryList list;
    list.referenceSize = size;
    list.offsetSize = size;
    list.objects = {list.array({1, 1}), BinaryList::text("a")};
    expectReading(list.bytes(), "['a', 'a']");
    list.objects[0] = list.array({1, 2});
    expectReading(list.bytes(), "error");
  }
}

TEST(PropertyListTest, DictionariesWithOtherKeysAreOther) {
  BinaryList list;
  list.objects = {list.dictionary({1, 2}, {2, 2}), "\x10\x01", BinaryList::text("a")};
  expectReading(list.bytes(), "other");
  list.objects.push_back(list.array({0}));
  list.top = 3;
  expectReading(list.bytes(), "[other]");
}

TEST(PropertyListTest, BinaryKeysThatHoldValuesAreNoList) {
  for (const std::string object : {"\xA0", "\xD0", "\xC0"}) {
    BinaryList list;
    list.objects = {list.dictionary({1}, {2}), object, BinaryList::text("a")};
    expectReading(list.bytes(), "error");
  }
}

TEST(PropertyListTest, TheEarlierOfTwoEqualBinaryKeysCounts) {
  BinaryList list;
  list.objects = {list.dictionary({1, 1}, {2, 3}), BinaryList::text("a"), BinaryList::text("1"),
                  BinaryList::text("2")};
  expectReading(list.bytes(), "{a: '1'}");
}

TEST(PropertyListTest, BinaryListsThatReferToThemselvesAreNoList) {
  BinaryList list;
  list.objects = {list.array({0})};
  expectReading(list.bytes(), "error");

  list.objects = {list.array({1, 1}), list.dictionary({2}, {0}), BinaryList::text("a")};
  expectReading(list.bytes(), "error");

  list.objects = {list.dictionary({0}, {0})};
  expectReading(list.bytes(), "error");
}

TEST(PropertyListTest, ABinaryListCutOffAnywhereIsNoList) {
  BinaryList list;
  list.objects = {list.dictionary({1}, {2}), BinaryList::text("key"), list.array({3, 4}),
                  BinaryList::text(u"\u00e9"), "\x33" + std::string(8, '\0')};
  const std::string whole = list.bytes();
  ASSERT_EQ(describedReading(whole), "{key: ['\u00e9', other]}");
  // Bytes too short to be recognised as a binary list are a word in macOS's text form.
  const std::size_t known = list.magic.size() - 1;
  for (std::size_t size = known; size < whole.size(); ++size) {
    expectReading(whole.substr(0, size), "error");
  }
  for (std::size_t size = 0; size < whole.size(); ++size) {
    expectReading(whole.substr(0, size) + std::string(whole.size() - size, '\0'), "error");
  }
  expectReading(whole + '\0', "error");
}

/// A binary list of one text, with a trailer that the test chooses.
struct TrailerCase {
  std::uint64_t offsetSize = 1;
  std::uint64_t referenceSize = 1;
  std::uint64_t count = 1;
  std::uint64_t top = 0;
  std::uint64_t table = 10;
  std::string_view expected = "error";
};

TEST(PropertyListTest, TheTrailerMustFit) {
  constexpr std::uint64_t kHuge = std::uint64_t{1} << 63U;
  constexpr TrailerCase kCases[] = {
      {.expected = "'a'"},  {.offsetSize = 0},    {.offsetSize = 2},
      {.offsetSize = 255},  {.referenceSize = 0}, {.referenceSize = 255, .expected = "'a'"},
      {.count = 0},         {.count = 2},         {.count = kHuge},
      {.count = kHuge + 1}, {.top = 1},           {.top = kHuge},
      {.table = 0},         {.table = 8},         {.table = 9},
      {.table = 11},        {.table = kHuge},     {.table = ~std::uint64_t{0}},
  };
  for (const TrailerCase& given : kCases) {
    const std::string bytes =
        "bplist00\x51"
        "a\x08" +
        std::string(6, '\0') + numberBytes(given.offsetSize, 1) +
        numberBytes(given.referenceSize, 1) + numberBytes(given.count, 8) +
        numberBytes(given.top, 8) + numberBytes(given.table, 8);
    EXPECT_EQ(describedReading(bytes), given.expected)
        << "offset size " << given.offsetSize << ", reference size " << given.referenceSize
        << ", count " << given.count << ", top " << given.top << ", table " << given.table;
  }
}

TEST(PropertyListTest, OffsetsMustPointIntoTheObjects) {
  for (const std::uint64_t offset : {0U, 7U, 10U, 11U, 42U, 255U}) {
    const std::string bytes =
        "bplist00\x51"
        "a" +
        numberBytes(offset, 1) + std::string(6, '\0') + numberBytes(1, 1) + numberBytes(1, 1) +
        numberBytes(1, 8) + numberBytes(0, 8) + numberBytes(10, 8);
    EXPECT_EQ(describedReading(bytes), "error") << "offset " << offset;
  }
}

TEST(PropertyListTest, OffsetsOfObjectsThatNobodyUsesCount) {
  BinaryList list;
  list.objects = {BinaryList::text("a"), BinaryList::text("b")};
  std::string bytes = list.bytes();
  ASSERT_EQ(describedReading(bytes), "'a'");
  bytes[bytes.size() - 33] = '\x7f';
  expectReading(bytes, "error");
}

TEST(PropertyListTest, FieldsMustHoldEveryNumber) {
  BinaryList list;
  list.objects.assign(256, BinaryList::text("a"));
  list.offsetSize = 2;
  list.referenceSize = 1;
  expectReading(list.bytes(), "error");
  list.referenceSize = 2;
  expectReading(list.bytes(), "'a'");
  list.objects.resize(255);
  list.referenceSize = 1;
  expectReading(list.bytes(), "'a'");
}

TEST(PropertyListTest, TheFormatsMinorVersionDoesNotCount) {
  BinaryList list;
  list.objects = {BinaryList::text("a")};
  for (const char* magic : {"bplist00", "bplist01", "bplist0x"}) {
    list.magic = magic;
    expectReading(list.bytes(), "'a'");
  }
  for (const char* magic : {"bplist15", "Bplist00", "xplist00"}) {
    list.magic = magic;
    expectReading(list.bytes(), "error");
  }
}

}  // namespace
}  // namespace launcher
