#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "discovery/linux/attached-images/MountTable.h"

namespace launcher {

// Shown where a test fails.
std::ostream& operator<<(std::ostream& stream, const Mount& mount) {
  return stream << "{" << mount.number << ", " << mount.source << ", " << mount.mountPoint << "}";
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(MountTableTest, ReadsTheKernelsLines) {
  EXPECT_THAT(parseMountTable(
                  "22 27 0:21 / /proc rw,relatime - proc proc rw\n"
                  "52 27 7:0 / /media/Vorx ro,nosuid shared:29 - squashfs /dev/loop0 ro\n"
                  "53 27 259:3 /sub /mnt rw master:1 propagate_from:2 - ext4 /dev/loop1p2 rw\n"),
              ElementsAre(Mount{"0:21", "proc", "/proc"}, Mount{"7:0", "/dev/loop0", "/media/Vorx"},
                          Mount{"259:3", "/dev/loop1p2", "/mnt"}));
}

TEST(MountTableTest, TheLastLineNeedsNoEnd) {
  EXPECT_THAT(parseMountTable("52 27 7:0 / /mnt ro - squashfs /dev/loop0 ro"),
              ElementsAre(Mount{"7:0", "/dev/loop0", "/mnt"}));
}

TEST(MountTableTest, DecodesTheKernelsEscapes) {
  const struct {
    std::string escaped;
    std::string mountPoint;
  } cases[] = {
      {R"(/a\040b)", "/a b"},
      {R"(/a\011b\012c)", "/a\tb\nc"},
      {R"(/a\134040b)", R"(/a\040b)"},
      {R"(/\043)", "/#"},
      {R"(/\377)", "/\xff"},
      {R"(/\400)", R"(/\400)"},
      {R"(/\08)", R"(/\08)"},
      {R"(/\04)", R"(/\04)"},
      {R"(/\)", R"(/\)"},
      {"/\u00e9", "/\u00e9"},
      {"/\xc3", "/\xc3"},
      {"//deleted", "//deleted"},
  };
  for (const auto& [escaped, mountPoint] : cases) {
    EXPECT_THAT(parseMountTable("52 27 7:0 / " + escaped + " ro - squashfs /dev/loop0 ro\n"),
                ElementsAre(Mount{"7:0", "/dev/loop0", mountPoint}));
  }
  EXPECT_THAT(parseMountTable(R"(52 27 0:9 / /mnt ro - nfs host:/a\040b ro)"),
              ElementsAre(Mount{"0:9", "host:/a b", "/mnt"}));
}

TEST(MountTableTest, KeepsABackslashThatBeginsNoEscape) {
  for (const char* name : {R"(\)", R"(a\)", R"(\04)", R"(\400)", R"(\048)", R"(\084)", R"(\x40)"}) {
    EXPECT_THAT(
        parseMountTable("52 27 7:0 / /" + std::string(name) + " ro - squashfs /dev/loop0 ro"),
        ElementsAre(Mount{"7:0", "/dev/loop0", "/" + std::string(name)}))
        << name;
  }
}

TEST(MountTableTest, FieldsMayBeEmpty) {
  EXPECT_THAT(parseMountTable("52 27 0:9 / /mnt ro - tmpfs  rw\n"),
              ElementsAre(Mount{"0:9", "", "/mnt"}));
}

TEST(MountTableTest, PassesOverOtherLines) {
  for (const char* line : {"", "\n\n", " ", "52", "52 27 7:0 / /mnt ro", "52 27 7:0 / - a b c",
                           "52 27 7:0 / /mnt ro shared:1 squashfs /dev/loop0 ro",
                           "52 27 7:0 / /mnt ro -", "52 27 7:0 / /mnt ro - squashfs"}) {
    EXPECT_THAT(parseMountTable(line), IsEmpty()) << line;
  }
  EXPECT_THAT(parseMountTable("nonsense\n52 27 7:0 / /mnt ro - squashfs /dev/loop0 ro\nmore\n"),
              ElementsAre(Mount{"7:0", "/dev/loop0", "/mnt"}));
}

}  // namespace
}  // namespace launcher
