#include <gtest/gtest.h>

#include "base/PercentEncoding.h"

namespace launcher {
namespace {

using namespace std::string_view_literals;

TEST(PercentEncodingTest, EscapesEveryByteOutsideTheSet) {
  constexpr ByteSet kKept{kLetters, "/"};
  EXPECT_EQ(escaped("", kKept), "");
  EXPECT_EQ(escaped("/a/Z", kKept), "/a/Z");
  EXPECT_EQ(escaped("a b%\0\xff"sv, kKept), "a%20b%25%00%FF");
}

TEST(PercentEncodingTest, KeepsTheEscapesThatAreThere) {
  constexpr ByteSet kKept{kLetters};
  EXPECT_EQ(escapedKeepingEscapes("", kKept), "");
  EXPECT_EQ(escapedKeepingEscapes("a b%20%2f%", kKept), "a%20b%20%2f%25");
  EXPECT_EQ(escapedKeepingEscapes("%2%20%zz", kKept), "%25%32%20%25zz");
}

TEST(PercentEncodingTest, KnowsWhatNeedsNoEscape) {
  constexpr ByteSet kKept{kLetters};
  for (const std::string_view text : {"", "a", "%20", "a%2fz"}) {
    EXPECT_TRUE(isEscaped(text, kKept)) << text;
  }
  for (const std::string_view text : {" ", "a1", "%", "%2", "%2g", "a%20 "}) {
    EXPECT_FALSE(isEscaped(text, kKept)) << text;
  }
}

TEST(PercentEncodingTest, ReadsEscapesOfEitherCase) {
  EXPECT_EQ(unescaped(""), "");
  EXPECT_EQ(unescaped("a%20b"), "a b");
  EXPECT_EQ(unescaped("%2F%2f%ff%FF%00"), "//\xff\xff\0"sv);
  EXPECT_EQ(unescaped("%2520"), "%20");
}

TEST(PercentEncodingTest, LeavesWhatIsNoEscape) {
  EXPECT_EQ(unescaped("%"), "%");
  EXPECT_EQ(unescaped("100%!"), "100%!");
  EXPECT_EQ(unescaped("%2"), "%2");
  EXPECT_EQ(unescaped("%2g%g2"), "%2g%g2");
}

TEST(PercentEncodingTest, ReadsTheEscapeAtTheBeginning) {
  EXPECT_EQ(leadingEscape("%aF"), '\xaf');
  EXPECT_EQ(leadingEscape("%09 and more"), '\t');
  for (const std::string_view text : {"", "%", "%0", "a%09", "%0 9", "%-1", "%+1", "% 1", "%0x1"}) {
    EXPECT_EQ(leadingEscape(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace launcher
