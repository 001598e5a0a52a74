#include <gtest/gtest.h>

#include <string>

#include "base/Unicode.h"
#include "discovery/PropertyList.h"
#include "discovery/linux/XmlText.h"

namespace launcher {
namespace {

TEST(XmlTextTest, WritesAPropertyList) {
  EXPECT_EQ(xmlPropertyList("<string>" + xmlText("a&b") + "</string>"),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
            "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
            "<plist version=\"1.0\">\n"
            "<string>a&amp;b</string>\n"
            "</plist>\n");
}

/// The text after it was written into a property list and read, or why it cannot be read.
std::string readBack(const std::string& text) {
  const PropertyListReading reading =
      readPropertyList(xmlPropertyList("<string>" + xmlText(text) + "</string>"));
  return reading.value ? *reading.value->text() : reading.error;
}

TEST(XmlTextTest, TextsAreReadBackAsTheyAre) {
  for (const std::string text :
       {"/", "/a b", " a ", "/a\nb\tc\rd\r\ne", "/<&>\"'", "]]>", "/\u00e9 e\u0301 \U0001f600",
        "/a\x7f", "/&amp;", "<!-- a -->", ""}) {
    EXPECT_EQ(readBack(text), text);
  }
}

TEST(XmlTextTest, PathsThatAreNotUtf8AreFound) {
  const std::string path = "/mnt/\xff\xc3";
  EXPECT_EQ(readBack(path), "/mnt/\ufffd\ufffd");
  EXPECT_TRUE(canonicallyEqual(readBack(path), path));
}

TEST(XmlTextTest, WhatXmlCannotHoldIsReplaced) {
  EXPECT_EQ(readBack("/a\x01\x1f"), "/a\ufffd\ufffd");
  EXPECT_EQ(readBack("/a\uFFFEb\uFFFF"), "/a\ufffdb\ufffd");
}

}  // namespace
}  // namespace launcher
