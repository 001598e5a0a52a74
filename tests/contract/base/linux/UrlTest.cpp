#include <gtest/gtest.h>

#include <string>

#include "base/Url.h"
#include "tests/contract/base/FoundationUrls.h"

// What the platforms' own URL types leave open, or change from one version to the next.
namespace launcher {
namespace {

TEST(UrlLinuxTest, RemovesTheLastComponentOfOddPathsAsNewerFoundationsDo) {
  for (const auto& [text, folder] : kNewerFolderAnswers) {
    EXPECT_EQ(Url::parse(text)->deletingLastPathComponent().absoluteString(), folder) << text;
  }
}

TEST(UrlLinuxTest, CarriesFilePathsThatAreNoText) {
  const std::string path("/a\xff\xc3\0b", 6);
  EXPECT_EQ(Url::ofFile(path).absoluteString(), "file:///a%FF%C3%00b");
  EXPECT_EQ(Url::ofFile(path).filePath(), path);
}

}  // namespace
}  // namespace launcher
