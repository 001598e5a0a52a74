#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/Unicode.h"
#include "discovery/PropertyList.h"
#include "discovery/linux/attached-images/ListingText.h"

namespace launcher {
namespace {

TEST(ListingTextTest, PrintsAPropertyList) {
  EXPECT_EQ(propertyListOf({{"/a&b.dmg", {{"/dev/loop0", std::nullopt}, {"/dev/loop0p1", "/m"}}}}),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
            "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
            "<plist version=\"1.0\">\n"
            "<dict>\n"
            "\t<key>images</key>\n"
            "\t<array>\n"
            "\t\t<dict>\n"
            "\t\t\t<key>image-path</key>\n"
            "\t\t\t<string>/a&amp;b.dmg</string>\n"
            "\t\t\t<key>system-entities</key>\n"
            "\t\t\t<array>\n"
            "\t\t\t\t<dict>\n"
            "\t\t\t\t\t<key>dev-entry</key>\n"
            "\t\t\t\t\t<string>/dev/loop0</string>\n"
            "\t\t\t\t</dict>\n"
            "\t\t\t\t<dict>\n"
            "\t\t\t\t\t<key>dev-entry</key>\n"
            "\t\t\t\t\t<string>/dev/loop0p1</string>\n"
            "\t\t\t\t\t<key>mount-point</key>\n"
            "\t\t\t\t\t<string>/m</string>\n"
            "\t\t\t\t</dict>\n"
            "\t\t\t</array>\n"
            "\t\t</dict>\n"
            "\t</array>\n"
            "</dict>\n"
            "</plist>\n");
}

/// The mount point of the only entity that the printed list holds, or why there is none.
std::string mountPointReadBack(const std::string& mountPoint) {
  const PropertyListReading reading =
      readPropertyList(propertyListOf({{"/a.dmg", {{"/dev/loop0", mountPoint}}}}));
  if (!reading.value) return reading.error;
  const PropertyList& image = valueAt(*reading.value->dictionary(), "images")->array()->front();
  const PropertyList& entity = valueAt(*image.dictionary(), "system-entities")->array()->front();
  return *valueAt(*entity.dictionary(), "mount-point")->text();
}

TEST(ListingTextTest, MountPointsAreReadBackAsTheyAre) {
  for (const std::string mountPoint :
       {"/", "/a b", " a ", "/a\nb\tc\rd\r\ne", "/<&>\"'", "]]>", "/\u00e9 e\u0301 \U0001f600",
        "/a\x7f", "/&amp;", "<!-- a -->", ""}) {
    EXPECT_EQ(mountPointReadBack(mountPoint), mountPoint);
  }
}

TEST(ListingTextTest, MountPointsThatAreNotUtf8AreFound) {
  const std::string mountPoint = "/mnt/\xff\xc3";
  EXPECT_EQ(mountPointReadBack(mountPoint), "/mnt/\ufffd\ufffd");
  EXPECT_TRUE(canonicallyEqual(mountPointReadBack(mountPoint), mountPoint));
}

TEST(ListingTextTest, WhatXmlCannotHoldIsReplaced) {
  EXPECT_EQ(mountPointReadBack("/a\x01\x1f"), "/a\ufffd\ufffd");
  EXPECT_EQ(mountPointReadBack("/a\uFFFEb\uFFFF"), "/a\ufffdb\ufffd");
}

TEST(ListingTextTest, PrintsAnEmptyPropertyList) {
  const PropertyListReading reading = readPropertyList(propertyListOf({}));
  ASSERT_TRUE(reading.value);
  EXPECT_EQ(valueAt(*reading.value->dictionary(), "images")->array()->size(), 0U);
}

TEST(ListingTextTest, PrintsATable) {
  EXPECT_EQ(tableOf({{"/home/me/Launcher.dmg",
                      {{"/dev/loop0", std::nullopt}, {"/dev/loop0p1", "/media/me/Launcher"}}},
                     {"/b.dmg", {{"/dev/loop10", "/mnt"}}}}),
            "/home/me/Launcher.dmg\n"
            "    /dev/loop0    not mounted\n"
            "    /dev/loop0p1  /media/me/Launcher\n"
            "/b.dmg\n"
            "    /dev/loop10   /mnt\n");
  EXPECT_EQ(tableOf({}), "No disk image is attached.\n");
}

TEST(ListingTextTest, ATableHasALineForEachPlace) {
  EXPECT_EQ(tableOf({{"/a\nb\x1b[31m.dmg", {{"/dev/loop0", "/\x7f\xff\u00e9"}}}}),
            "/a\\012b\\033[31m.dmg\n"
            "    /dev/loop0  /\\177\ufffd\u00e9\n");
}

}  // namespace
}  // namespace launcher
