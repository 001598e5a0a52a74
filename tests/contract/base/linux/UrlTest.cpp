#include <gtest/gtest.h>

#include <string>

#include "base/Url.h"

// What the platforms' own URL types leave open or do differently from one version to the next.
namespace launcher {
namespace {

TEST(UrlLinuxTest, KeepsARootPath) {
  for (const std::string text : {"https://h/", "https://h//", "file:///", "/", "https://h/?q"}) {
    EXPECT_EQ(Url::parse(text)->deletingLastPathComponent().absoluteString(), text);
  }
}

TEST(UrlLinuxTest, ReplacesADotAtTheEnd) {
  EXPECT_EQ(Url::parse(".")->deletingLastPathComponent().absoluteString(), "../");
  EXPECT_EQ(Url::parse("..")->deletingLastPathComponent().absoluteString(), "../../");
  EXPECT_EQ(Url::parse("https://h/.")->deletingLastPathComponent().absoluteString(),
            "https://h/../");
}

TEST(UrlLinuxTest, CarriesFilePathsThatAreNoText) {
  const std::string path("/a\xff\xc3\0b", 6);
  EXPECT_EQ(Url::ofFile(path).absoluteString(), "file:///a%FF%C3%00b");
  EXPECT_EQ(Url::ofFile(path).filePath(), path);
}

TEST(UrlLinuxTest, EndsAnAddressInBracketsWithTheTextAtTheLatest) {
  EXPECT_EQ(Url::parse("https://[::1")->host(), "::1");
}

}  // namespace
}  // namespace launcher
