// The texts that a property list holds, read by other readers.

#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "base/Unicode.h"
#include "base/linux/Spawn.h"
#include "discovery/PropertyList.h"
#include "discovery/linux/XmlText.h"
#include "tests/contract/ScratchFolder.h"
#include "tests/contract/base/CodePointNotation.h"

namespace launcher {
namespace {

/// The list's only text as Python reads it; empty if Python reads no list.
std::string textReadByPython(const std::string& list) {
  const ScratchFolder folder;
  std::ofstream(folder.file("list")) << list;
  const std::string program =
      "import plistlib, sys\n"
      "text = plistlib.load(open(sys.argv[1], 'rb'))\n"
      "open(sys.argv[2], 'wb').write(text.encode())\n";
  const auto python =
      spawn({.path = "/usr/bin/python3",
             .arguments = {"-c", program, folder.file("list"), folder.file("text")}});
  if (python != nullptr) python->waitUntilExit();
  return contentOf(folder.file("text"));
}

std::string textReadByUs(const std::string& list) {
  const PropertyListReading reading = readPropertyList(list);
  return reading.value ? *reading.value->text() : reading.error;
}

/// Whether XML can hold the character.
bool isHoldable(char32_t point) {
  if (point < 0x20) return point == '\t' || point == '\n' || point == '\r';
  return point != 0xFFFE && point != 0xFFFF;
}

TEST(XmlTextReadersTest, EveryCharacterIsReadBackOrReplaced) {
  std::string text;
  std::string expected;
  for (char32_t point = 1; point <= 0x10FFFF; ++point) {
    if (point >= 0xD800 && point <= 0xDFFF) continue;
    const std::string character = utf8(unitsOf(point));
    text += character;
    expected += isHoldable(point) ? character : "\ufffd";
  }
  const std::string list = xmlPropertyList("<string>" + xmlText(text) + "</string>");
  EXPECT_TRUE(textReadByUs(list) == expected) << "our reader sees another text";
  EXPECT_TRUE(textReadByPython(list) == expected) << "Python sees another text";
}

}  // namespace
}  // namespace launcher
