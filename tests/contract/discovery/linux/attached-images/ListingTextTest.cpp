// The list that the tool prints, read by other readers.

#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "base/Unicode.h"
#include "base/linux/Spawn.h"
#include "discovery/PropertyList.h"
#include "discovery/linux/attached-images/ListingText.h"
#include "tests/contract/ScratchFolder.h"

namespace launcher {
namespace {

/// The path of the first image as Python reads it; empty if Python reads no list.
std::string pathReadByPython(const std::string& list) {
  const ScratchFolder folder;
  std::ofstream(folder.file("list")) << list;
  const std::string program =
      "import plistlib, sys\n"
      "listing = plistlib.load(open(sys.argv[1], 'rb'))\n"
      "open(sys.argv[2], 'wb').write(listing['images'][0]['image-path'].encode())\n";
  const auto python =
      spawn({.path = "/usr/bin/python3",
             .arguments = {"-c", program, folder.file("list"), folder.file("path")}});
  if (python != nullptr) python->waitUntilExit();
  return contentOf(folder.file("path"));
}

std::string pathReadByUs(const std::string& list) {
  const PropertyListReading reading = readPropertyList(list);
  if (!reading.value) return reading.error;
  const PropertyList& image = valueAt(*reading.value->dictionary(), "images")->array()->front();
  return *valueAt(*image.dictionary(), "image-path")->text();
}

/// Whether XML can hold the character.
bool isHoldable(char32_t point) {
  if (point < 0x20) return point == '\t' || point == '\n' || point == '\r';
  return point != 0xFFFE && point != 0xFFFF;
}

TEST(ListingTextReadersTest, EveryCharacterIsReadBackOrReplaced) {
  std::string path;
  std::string expected;
  for (char32_t point = 1; point <= 0x10FFFF; ++point) {
    if (point >= 0xD800 && point <= 0xDFFF) continue;
    path += utf8(point);
    expected += isHoldable(point) ? utf8(point) : "\ufffd";
  }
  const std::string list = propertyListOf({{path, {}}});
  EXPECT_TRUE(pathReadByUs(list) == expected) << "our reader sees another path";
  EXPECT_TRUE(pathReadByPython(list) == expected) << "Python sees another path";
}

}  // namespace
}  // namespace launcher
