#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "discovery/linux/attached-images/MountTable.h"

namespace launcher {

// Shown where a test fails.
std::ostream& operator<<(std::ostream& stream, const Mount& mount) {
  return stream << "{" << mount.id << " in " << mount.parent << ", " << mount.number << " "
                << mount.root << " at " << mount.mountPoint << ", " << mount.type << " "
                << mount.source << "}";
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What "52 27 7:0 / PLACE ro - squashfs /dev/loop0 ro" says.
Mount squashAt(const std::string& place) {
  return {52, 27, "7:0", "/", place, "squashfs", "/dev/loop0"};
}

TEST(MountTableTest, ReadsTheKernelsLines) {
  EXPECT_THAT(parseMountTable(
                  "22 27 0:21 / /proc rw,relatime - proc proc rw\n"
                  "52 27 7:0 / /media/Vorx ro,nosuid shared:29 - squashfs /dev/loop0 ro\n"
                  "53 27 259:3 /sub /mnt rw master:1 propagate_from:2 - ext4 /dev/loop1p2 rw\n"),
              ElementsAre(Mount{22, 27, "0:21", "/", "/proc", "proc", "proc"},
                          Mount{52, 27, "7:0", "/", "/media/Vorx", "squashfs", "/dev/loop0"},
                          Mount{53, 27, "259:3", "/sub", "/mnt", "ext4", "/dev/loop1p2"}));
}

TEST(MountTableTest, TheLastLineNeedsNoEnd) {
  EXPECT_THAT(parseMountTable("52 27 7:0 / /mnt ro - squashfs /dev/loop0 ro"),
              ElementsAre(squashAt("/mnt")));
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
                ElementsAre(squashAt(mountPoint)));
  }
  EXPECT_THAT(parseMountTable(R"(52 27 0:9 /c\040d /mnt ro - nfs host:/a\040b ro)"),
              ElementsAre(Mount{52, 27, "0:9", "/c d", "/mnt", "nfs", "host:/a b"}));
}

TEST(MountTableTest, KeepsABackslashThatBeginsNoEscape) {
  for (const char* name : {R"(\)", R"(a\)", R"(\04)", R"(\400)", R"(\048)", R"(\084)", R"(\x40)"}) {
    EXPECT_THAT(
        parseMountTable("52 27 7:0 / /" + std::string(name) + " ro - squashfs /dev/loop0 ro"),
        ElementsAre(squashAt("/" + std::string(name))))
        << name;
  }
}

TEST(MountTableTest, FieldsMayBeEmpty) {
  EXPECT_THAT(parseMountTable("52 27 0:9 / /mnt ro - tmpfs  rw\n"),
              ElementsAre(Mount{52, 27, "0:9", "/", "/mnt", "tmpfs", ""}));
}

TEST(MountTableTest, SkipsOtherLines) {
  for (const char* line : {"", "\n\n", " ", "52", "52 27 7:0 / /mnt ro", "52 27 7:0 / - a b c",
                           "52 27 7:0 / /mnt ro shared:1 squashfs /dev/loop0 ro",
                           "x 27 7:0 / /mnt ro - squashfs /dev/loop0 ro",
                           "52 27x 7:0 / /mnt ro - squashfs /dev/loop0 ro",
                           "52 99999999999 7:0 / /mnt ro - squashfs /dev/loop0 ro",
                           "52 27 7:0 / /mnt ro -", "52 27 7:0 / /mnt ro - squashfs"}) {
    EXPECT_THAT(parseMountTable(line), IsEmpty()) << line;
  }
  EXPECT_THAT(parseMountTable("nonsense\n52 27 7:0 / /mnt ro - squashfs /dev/loop0 ro\nmore\n"),
              ElementsAre(squashAt("/mnt")));
}

Mount mountAt(int id, int parent, const std::string& place) {
  return {id, parent, "7:0", "/", place, "squashfs", "/dev/loop0"};
}

struct ReachCase {
  std::string name;
  std::vector<Mount> mounts;
  std::vector<int> reachable;
};

TEST(MountTableTest, AMountIsReachableUnlessAnotherCoversIt) {
  const Mount root = mountAt(1, 0, "/");
  const ReachCase cases[] = {
      {"none", {}, {}},
      {"side by side", {root, mountAt(2, 1, "/a"), mountAt(3, 1, "/ab")}, {1, 2, 3}},
      {"inside another", {root, mountAt(2, 1, "/a"), mountAt(3, 2, "/a/b/c")}, {1, 2, 3}},
      {"at the same place", {root, mountAt(2, 1, "/a"), mountAt(3, 2, "/a")}, {1, 3}},
      {"three at the same place",
       {root, mountAt(2, 1, "/a"), mountAt(3, 2, "/a"), mountAt(4, 3, "/a")},
       {1, 4}},
      {"below a later one", {root, mountAt(2, 1, "/a/b"), mountAt(3, 1, "/a")}, {1, 3}},
      {"beside a later one", {root, mountAt(2, 1, "/a/b"), mountAt(3, 1, "/a/c")}, {1, 2, 3}},
      {"again above the one below",
       {root, mountAt(2, 1, "/a/b"), mountAt(3, 1, "/a"), mountAt(4, 3, "/a/b")},
       {1, 3, 4}},
      {"below a later root", {root, mountAt(2, 1, "/a"), mountAt(3, 1, "/")}, {3}},
      {"children before parents", {mountAt(3, 2, "/a/b"), mountAt(2, 1, "/a"), root}, {3, 2, 1}},
      {"a root that is its own parent", {mountAt(1, 1, "/"), mountAt(2, 1, "/a")}, {1, 2}},
      {"no root in the table", {mountAt(2, 1, "/a"), mountAt(3, 1, "/b")}, {2, 3}},
      {"in circles", {root, mountAt(2, 3, "/a"), mountAt(3, 2, "/a")}, {1}},
  };
  for (const auto& [name, mounts, reachable] : cases) {
    std::vector<int> found;
    for (const Mount& mount : reachableMounts(mounts)) found.push_back(mount.id);
    EXPECT_EQ(found, reachable) << name;
  }
}

}  // namespace
}  // namespace launcher
