#include <gtest/gtest.h>

#include <string>

#include "base/Unicode.h"

namespace launcher {
namespace {

using namespace std::string_view_literals;

struct WellFormedCase {
  std::string_view text;
  std::u16string_view units;
};

TEST(UnicodeEncodingTest, ConvertsWellFormedTextsBothWays) {
  constexpr WellFormedCase kCases[] = {
      {"", u""},
      {"abc", u"abc"},
      {"a\0b"sv, u"a\0b"sv},
      {"\x7f\u0080\u07ff", u"\x7f\u0080\u07ff"},
      {"\u0800\ud7ff\ue000\uffff", u"\u0800\ud7ff\ue000\uffff"},
      {"\U00010000\U0010ffff", u"\U00010000\U0010ffff"},
      {"\ufffd", u"\ufffd"},
  };
  for (const auto& [text, units] : kCases) {
    EXPECT_EQ(utf16(text), units) << testing::PrintToString(text);
    EXPECT_EQ(utf8(units), text) << testing::PrintToString(text);
    EXPECT_EQ(repairedUtf8(text), text) << testing::PrintToString(text);
    EXPECT_TRUE(isUtf8(text)) << testing::PrintToString(text);
  }
}

struct IllFormedCase {
  std::string_view bytes;
  std::string_view repaired;
};

TEST(UnicodeEncodingTest, ReplacesEachIllFormedSequenceOnce) {
  constexpr IllFormedCase kCases[] = {
      {"\x80", "\ufffd"},
      {"\xbf\x80", "\ufffd\ufffd"},
      {"\xc0\x80", "\ufffd\ufffd"},
      {"\xc1\xbf", "\ufffd\ufffd"},
      {"\xc3", "\ufffd"},
      {"\xc3z", "\ufffdz"},
      {"\xe0\x9f\xbf", "\ufffd\ufffd\ufffd"},
      {"\xe0\xa0", "\ufffd"},
      {"\xe2\x82z", "\ufffdz"},
      {"\xe2z", "\ufffdz"},
      {"\xed\xa0\x80", "\ufffd\ufffd\ufffd"},
      {"\xed\xbf\xbf", "\ufffd\ufffd\ufffd"},
      {"\xf0\x8f\xbf\xbf", "\ufffd\ufffd\ufffd\ufffd"},
      {"\xf0\x9f\x98", "\ufffd"},
      {"\xf1\x80\x80z", "\ufffdz"},
      {"\xf4\x90\x80\x80", "\ufffd\ufffd\ufffd\ufffd"},
      {"\xf5\x80", "\ufffd\ufffd"},
      {"\xff\xfe", "\ufffd\ufffd"},
      {"a\xf0\x9f\x98\xe2\x82\xac", "a\ufffd\u20ac"},
      {"a\0\xff"sv, "a\0\ufffd"sv},
  };
  for (const auto& [bytes, repaired] : kCases) {
    EXPECT_EQ(repairedUtf8(bytes), repaired) << testing::PrintToString(bytes);
    EXPECT_EQ(utf8(utf16(bytes)), repaired) << testing::PrintToString(bytes);
    EXPECT_FALSE(isUtf8(bytes)) << testing::PrintToString(bytes);
  }
}

TEST(UnicodeEncodingTest, ReplacesLoneSurrogates) {
  const auto units = [](std::initializer_list<char16_t> list) { return std::u16string(list); };
  EXPECT_EQ(utf8(units({0xD800})), "\ufffd");
  EXPECT_EQ(utf8(units({0xDC00})), "\ufffd");
  EXPECT_EQ(utf8(units({0xDFFF, 0xD800})), "\ufffd\ufffd");
  EXPECT_EQ(utf8(units({0xD83D, u'a'})), "\ufffda");
  EXPECT_EQ(utf8(units({0xD83D, 0xD83D, 0xDE00})), "\ufffd\U0001f600");
}

}  // namespace
}  // namespace launcher
