#include <gtest/gtest.h>

#include <vector>

#include "viewer/Arguments.h"

namespace viewer {
namespace {

std::optional<Arguments> parse(std::vector<const char*> argv) {
  return parseArguments(static_cast<int>(argv.size()), argv.data());
}

TEST(ViewerArgumentsTest, AreReadUnchanged) {
  const auto arguments = parse({"viewer", "-l", "host name", "-i", "::1", "-r", "/a b/\xff"});
  ASSERT_TRUE(arguments);
  EXPECT_EQ(arguments->host, "host name");
  EXPECT_EQ(arguments->ipAddress, "::1");
  EXPECT_EQ(arguments->resourceFolder, "/a b/\xff");
}

TEST(ViewerArgumentsTest, MayBeEmptyTexts) {
  const auto arguments = parse({"viewer", "-l", "", "-i", "", "-r", ""});
  ASSERT_TRUE(arguments);
  EXPECT_EQ(arguments->host, "");
}

TEST(ViewerArgumentsTest, AreToldInOneLine) {
  EXPECT_EQ(description({.host = "h", .ipAddress = "::1", .resourceFolder = "/a b"}),
            "sample viewer: host h, IP address ::1, resource folder /a b");
}

TEST(ViewerArgumentsTest, AreShownOneBelowTheOther) {
  EXPECT_EQ(message({.host = "h", .ipAddress = "::1", .resourceFolder = "/a b"}),
            "The remote-control viewer would be given:\n\n"
            "Host: h\nIP address: ::1\nResource folder: /a b");
}

TEST(ViewerArgumentsTest, OthersAreRefused) {
  EXPECT_FALSE(parse({}));
  EXPECT_FALSE(parse({"viewer"}));
  EXPECT_FALSE(parse({"viewer", "-l", "host", "-i", "::1", "-r"}));
  EXPECT_FALSE(parse({"viewer", "-l", "host", "-i", "::1", "-r", "/r", "more"}));
  EXPECT_FALSE(parse({"viewer", "-x", "host", "-i", "::1", "-r", "/r"}));
  EXPECT_FALSE(parse({"viewer", "-l", "host", "-x", "::1", "-r", "/r"}));
  EXPECT_FALSE(parse({"viewer", "-l", "host", "-i", "::1", "-x", "/r"}));
}

}  // namespace
}  // namespace viewer
