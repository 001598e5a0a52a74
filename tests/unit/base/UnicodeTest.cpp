#include <gtest/gtest.h>

#include <string>

#include "base/Unicode.h"

namespace launcher {
namespace {

using namespace std::string_view_literals;

struct CountCase {
  std::string_view text;
  std::size_t characters;
};

TEST(UnicodeTest, CountsCharactersAsPeopleSeeThem) {
  constexpr CountCase kCases[] = {
      {"", 0},
      {"a", 1},
      {"abc", 3},
      {"a\0b"sv, 3},
      {"\r\n", 1},
      {"\n\r", 2},
      {"\r", 1},
      {"\r\n\r\n", 2},
      {"\r\r\n\n", 3},
      {"a\r\nb", 3},
      {"e\u0301", 1},
      {"\u00e9", 1},
      {"\U0001f600", 1},
      {"\U0001f468\u200d\U0001f469\u200d\U0001f467", 1},
      {"\U0001f1eb\U0001f1f7\U0001f1e9", 2},
      {"\u00e9\r\n", 2},
      {"\xff", 1},
      {"a\xe2\x82"
       "b",
       3},
  };
  for (const auto& [text, characters] : kCases) {
    EXPECT_EQ(characterCount(text), characters) << testing::PrintToString(text);
  }
}

struct DecompositionCase {
  std::string_view text;
  std::string_view decomposed;
};

TEST(UnicodeTest, DecomposesCanonically) {
  constexpr DecompositionCase kCases[] = {
      {"", ""},
      {"vexlink", "vexlink"},
      {"\u00e9", "e\u0301"},
      {"e\u0301", "e\u0301"},
      {"\u1e69", "s\u0323\u0307"},
      {"s\u0307\u0323", "s\u0323\u0307"},
      {"\ud55c", "\u1112\u1161\u11ab"},
      {"\ufb01", "\ufb01"},
      {"\u212a", "K"},
      {"\xff\u00e9", "\ufffde\u0301"},
  };
  for (const auto& [text, decomposed] : kCases) {
    EXPECT_EQ(canonicallyDecomposed(text), decomposed) << testing::PrintToString(text);
  }
}

struct EqualityCase {
  std::string_view a;
  std::string_view b;
  bool equal;
};

TEST(UnicodeTest, ComparesBytesInAsciiElseCanonicalEquivalence) {
  constexpr EqualityCase kCases[] = {
      {"", "", true},
      {"", "a", false},
      {"/Volumes/V", "/Volumes/V", true},
      {"/Volumes/V", "/Volumes/V/", false},
      {"/Volumes/V", "/volumes/v", false},
      {"a\0b"sv, "a\0b"sv, true},
      {"a\0b"sv, "a\0c"sv, false},
      {"a\0"sv, "a", false},
      {"\u00e9", "e\u0301", true},
      {"\u00e9", "\u00e9", true},
      {"\u00e9", "\u00c9", false},
      {"\u00e9", "e", false},
      {"s\u0323\u0307", "s\u0307\u0323", true},
      {"\u212a", "K", true},
      {"K", "\u212a", true},
      {"\ufb01", "fi", false},
      {"\xff", "\ufffd", true},
  };
  for (const auto& [a, b, equal] : kCases) {
    EXPECT_EQ(canonicallyEqual(a, b), equal)
        << testing::PrintToString(a) << " " << testing::PrintToString(b);
  }
}

struct PrefixCase {
  std::string_view text;
  std::string_view prefix;
  bool passes;
};

TEST(UnicodeTest, TestsPrefixesInBytesForAsciiElseDecomposed) {
  constexpr PrefixCase kCases[] = {
      {"", "", true},
      {"vexlink", "", true},
      {"\u00e9", "", true},
      {"", "v", false},
      {"vexlink", "vex", true},
      {"vexlink", "vexlink", true},
      {"vexlink", "vexlinks", false},
      {"vexlink", "Vex", false},
      {"vexlink", "exl", false},
      {"vexlink", "vexl\u00ed", false},
      {"\u00e9tage", "e\u0301t", true},
      {"e\u0301tage", "\u00e9t", true},
      {"\u00e9tage", "e", true},
      {"etage", "\u00e9", false},
      {"\u00c9tage", "\u00e9", false},
      {"Key", "\u212a", true},
      {"\u212aey", "Ke", true},
      {"\xffz", "\ufffd", true},
  };
  for (const auto& [text, prefix, passes] : kCases) {
    EXPECT_EQ(hasCanonicalPrefix(text, prefix), passes)
        << testing::PrintToString(text) << " " << testing::PrintToString(prefix);
  }
}

TEST(UnicodeTest, LowersCapitalsOfAsciiAlone) {
  EXPECT_EQ(asciiLowerCase(""), "");
  EXPECT_EQ(asciiLowerCase("@AZ[`az{09"), "@az[`az{09");
  EXPECT_EQ(asciiLowerCase("\u00c9\u0130K\u212a\xff"), "\u00c9\u0130k\u212a\xff");
}

TEST(UnicodeTest, AsciiEndsBelow0x80) {
  EXPECT_TRUE(isAscii(""));
  EXPECT_TRUE(isAscii("\0\x01 ~\x7f"sv));
  EXPECT_FALSE(isAscii("\x80"));
  EXPECT_FALSE(isAscii("a\xff"));
  EXPECT_TRUE(isAscii(u"\0\x01 ~\x7f"sv));
  EXPECT_FALSE(isAscii(u"a\u0080"));
  EXPECT_FALSE(isAscii(u"\uffff"));
}

TEST(UnicodeTest, AsciiIsToldAtEveryPlaceOfALongText) {
  for (std::size_t at = 0; at < 100; ++at) {
    std::string text(100, 'a');
    text[at] = '\x80';
    EXPECT_FALSE(isAscii(text)) << at;
  }
}

}  // namespace
}  // namespace launcher
