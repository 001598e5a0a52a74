#include <gtest/gtest.h>

#include "base/UrlSyntax.h"

namespace launcher {
namespace {

struct SplitCase {
  std::string_view text;
  UrlParts parts;
};

TEST(UrlSyntaxTest, SplitsAnyText) {
  const SplitCase kCases[] = {
      {"", {"", std::nullopt, std::nullopt, "", ""}},
      {"https://u@h:80/a/b?c#d", {"https://u@h:80", "https", "u@h:80", "/a/b", "?c#d"}},
      {"https://h", {"https://h", "https", "h", "", ""}},
      {"https://h?q", {"https://h", "https", "h", "", "?q"}},
      {"https://h#f?g", {"https://h", "https", "h", "", "#f?g"}},
      {"https:", {"https:", "https", std::nullopt, "", ""}},
      {"https:///a", {"https://", "https", "", "/a", ""}},
      {"//h/a", {"//h", std::nullopt, "h", "/a", ""}},
      {"mailto:a@b", {"mailto:", "mailto", std::nullopt, "a@b", ""}},
      {"/a:b//c", {"", std::nullopt, std::nullopt, "/a:b//c", ""}},
      {"?a:b", {"", std::nullopt, std::nullopt, "", "?a:b"}},
      {":a", {":", "", std::nullopt, "a", ""}},
  };
  for (const auto& [text, parts] : kCases) {
    const UrlParts found = splitUrl(text);
    EXPECT_EQ(found.front, parts.front) << text;
    EXPECT_EQ(found.scheme, parts.scheme) << text;
    EXPECT_EQ(found.authority, parts.authority) << text;
    EXPECT_EQ(found.path, parts.path) << text;
    EXPECT_EQ(found.tail, parts.tail) << text;
  }
}

TEST(UrlSyntaxTest, FindsTheHostInAnAuthority) {
  EXPECT_EQ(hostIn("h"), "h");
  EXPECT_EQ(hostIn("u:p@h:80"), "h");
  EXPECT_EQ(hostIn("u@v@h"), "h");
  EXPECT_EQ(hostIn("u@[::1]:80"), "::1");
  EXPECT_EQ(hostIn("[::1"), "::1");
  EXPECT_EQ(hostIn("u@"), "");
  EXPECT_EQ(hostIn(":80"), "");
  EXPECT_EQ(hostIn(""), "");
}

TEST(UrlSyntaxTest, EscapesWhatNoTailHolds) {
  EXPECT_EQ(escapedTail(""), "");
  EXPECT_EQ(escapedTail("/a;b=c?d/e?f#g"), "/a;b=c?d/e?f#g");
  EXPECT_EQ(escapedTail("/a b%20c?d=[e]#f#g"), "/a%20b%20c?d=%5Be%5D#f%23g");
  EXPECT_EQ(escapedTail("#"), "#");
  EXPECT_EQ(escapedTail("/%\\^`{|}<>\"\x7f\u00e9"), "/%25%5C%5E%60%7B%7C%7D%3C%3E%22%7F%C3%A9");
}

}  // namespace
}  // namespace launcher
