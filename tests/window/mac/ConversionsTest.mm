// Texts and lists from the toolkit to the logic and back.

#import "base/mac/Conversions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#import "discovery/mac/ListConversions.h"

namespace launcher {
namespace {

NSString* units(std::vector<unichar> characters) {
  return [NSString stringWithCharacters:characters.data() length:characters.size()];
}

struct FromCase {
  NSString* given;
  std::string expected;
};

TEST(ConversionsTest, TextsComeAsUtf8) {
  NSString* const smile = units({0xd83d, 0xde00});
  const std::vector<FromCase> cases = {
      {nil, ""},
      {@"", ""},
      {@"abc", "abc"},
      {@"\u00e9\u4e2d", "\u00e9\u4e2d"},
      {smile, "\U0001f600"},
      {units({'a', 0, 'b'}), std::string("a\0b", 3)},
      {[smile substringToIndex:1], "\ufffd"},
      {[smile substringFromIndex:1], "\ufffd"},
  };
  for (const auto& [given, expected] : cases) {
    EXPECT_EQ(toStdString(given), expected) << [[given description] UTF8String];
  }
}

struct ToCase {
  std::string given;
  std::vector<unichar> expected;
};

TEST(ConversionsTest, TextsGoAsUtf16) {
  const std::vector<ToCase> cases = {
      {"", {}},
      {"abc", {'a', 'b', 'c'}},
      {"\u00e9", {0xe9}},
      {"\U0001f600", {0xd83d, 0xde00}},
      {std::string("a\0b", 3), {'a', 0, 'b'}},
      {"a\xff", {'a', 0xfffd}},
  };
  for (const auto& [given, expected] : cases) {
    EXPECT_TRUE([toNSString(given) isEqualToString:units(expected)]) << given;
  }
}

TEST(ConversionsTest, AbsenceGoesAsNil) {
  EXPECT_EQ(toNSStringOrNil(std::nullopt), nil);
  EXPECT_TRUE([toNSStringOrNil("x") isEqualToString:@"x"]);
  EXPECT_TRUE([toNSStringOrNil("") isEqualToString:@""]);
}

TEST(ConversionsTest, UrlsComeByTheirAbsoluteText) {
  EXPECT_EQ(toUrl([NSURL fileURLWithPath:@"/a b/\u4e2d.dmg"])->filePath(), "/a b/\u4e2d.dmg");
  EXPECT_EQ(toUrl([NSURL URLWithString:@"https://h/D/F"])->absoluteString(), "https://h/D/F");
  EXPECT_EQ(toUrl(static_cast<NSURL*>(nil)), std::nullopt);
}

PropertyList valueOf(id object) { return *valueAt(toDictionary(@{@"key" : object}), "key"); }

TEST(ConversionsTest, ListsComeWithWhatIsReadOfThem) {
  using Array = PropertyList::Array;
  using Dictionary = PropertyList::Dictionary;
  EXPECT_EQ(valueOf(@"text"), PropertyList("text"));
  EXPECT_EQ(valueOf(@(YES)), PropertyList());
  EXPECT_EQ(valueOf(@[ @"a", @(1), @{@"k" : @"v"} ]),
            PropertyList(Array{"a", PropertyList(), Dictionary{{"k", "v"}}}));
  EXPECT_EQ(valueOf(@{@(1) : @"v"}), PropertyList());
  EXPECT_EQ(valueOf(@{}), PropertyList(Dictionary{}));
}

}  // namespace
}  // namespace launcher
