#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "discovery/linux/attached-images/AttachedImageList.h"

namespace launcher {
namespace {

std::string described(const std::vector<AttachedImage>& images) {
  std::string text;
  for (const AttachedImage& image : images) {
    text += image.path + ":";
    for (const auto& [device, mountPoint] : image.entities) {
      text += " " + device + "=" + mountPoint.value_or("-");
    }
    text += "\n";
  }
  return text;
}

struct Case {
  std::vector<LoopDevice> loops;
  std::vector<Mount> mounts;
  std::string expected;
};

/// A whole file system, mounted at a place that nothing covers.
Mount mountOf(const std::string& number, const std::string& source, const std::string& place,
              const std::string& type = "squashfs") {
  static int lastId = 1;
  return {++lastId, 1, number, "/", place, type, source};
}

const LoopDevice kPlain = {"/a.dmg", {{"loop0", "7:0"}}};
const LoopDevice kPartitioned = {"/b.dmg",
                                 {{"loop1", "7:1"}, {"loop1p1", "259:0"}, {"loop1p2", "259:1"}}};

TEST(AttachedImageListTest, ListsTheMountsOfEachImage) {
  const Case cases[] = {
      {{}, {}, ""},
      {{}, {mountOf("7:0", "/dev/loop0", "/mnt")}, ""},
      {{kPlain}, {}, "/a.dmg: /dev/loop0=-\n"},
      {{kPlain}, {mountOf("7:0", "/dev/loop0", "/mnt")}, "/a.dmg: /dev/loop0=/mnt\n"},
      {{kPlain}, {mountOf("7:1", "/dev/loop1", "/mnt")}, "/a.dmg: /dev/loop0=-\n"},
      {{kPlain}, {mountOf("7:00", "/dev/loop00", "/mnt")}, "/a.dmg: /dev/loop0=-\n"},
      {{kPartitioned},
       {mountOf("259:1", "/dev/loop1p2", "/mnt")},
       "/b.dmg: /dev/loop1=- /dev/loop1p1=- /dev/loop1p2=/mnt\n"},
      {{kPlain, kPartitioned},
       {mountOf("259:0", "/dev/loop1p1", "/b"), mountOf("7:0", "/dev/loop0", "/a")},
       "/a.dmg: /dev/loop0=/a\n/b.dmg: /dev/loop1=- /dev/loop1p1=/b /dev/loop1p2=-\n"},
  };
  for (const auto& [loops, mounts, expected] : cases) {
    EXPECT_EQ(described(attachedImages(loops, mounts)), expected);
  }
}

TEST(AttachedImageListTest, ADeviceMountedTwiceIsListedTwice) {
  EXPECT_EQ(described(attachedImages(
                {kPlain}, {mountOf("7:0", "/dev/loop0", "/z"), mountOf("8:1", "/dev/sda1", "/home"),
                           mountOf("7:0", "/dev/loop0", "/a")})),
            "/a.dmg: /dev/loop0=/z /dev/loop0=/a\n");
}

TEST(AttachedImageListTest, TheNumberCountsBeforeTheSource) {
  EXPECT_EQ(
      described(attachedImages({kPlain, kPartitioned}, {mountOf("7:0", "/dev/loop1", "/a"),
                                                        mountOf("7:1", "/dev/renamed", "/b")})),
      "/a.dmg: /dev/loop0=/a\n/b.dmg: /dev/loop1=/b /dev/loop1p1=- /dev/loop1p2=-\n");
}

TEST(AttachedImageListTest, BtrfsHasNumbersOfItsOwnAndIsFoundBySource) {
  const Mount btrfs = mountOf("0:45", "/dev/loop0", "/btrfs", "btrfs");
  EXPECT_EQ(described(attachedImages({kPlain}, {btrfs})), "/a.dmg: /dev/loop0=/btrfs\n");
}

TEST(AttachedImageListTest, AMountNamedAfterTheDeviceDoesNotCount) {
  for (const char* type : {"tmpfs", "overlay", "squashfs"}) {
    const Mount mount = mountOf("0:45", "/dev/loop0", "/mnt", type);
    EXPECT_EQ(described(attachedImages({kPlain}, {mount})), "/a.dmg: /dev/loop0=-\n") << type;
  }
}

TEST(AttachedImageListTest, AFolderBoundElsewhereIsNotTheVolume) {
  Mount bound = mountOf("7:0", "/dev/loop0", "/bound");
  bound.root = "/folder";
  const Mount whole = mountOf("7:0", "/dev/loop0", "/whole");
  EXPECT_EQ(described(attachedImages({kPlain}, {bound})), "/a.dmg: /dev/loop0=-\n");
  EXPECT_EQ(described(attachedImages({kPlain}, {bound, whole})), "/a.dmg: /dev/loop0=/whole\n");
}

TEST(AttachedImageListTest, AMountThatAnotherCoversIsNone) {
  const Mount below = mountOf("7:0", "/dev/loop0", "/mnt");
  Mount above = mountOf("0:50", "tmpfs", "/mnt", "tmpfs");
  above.parent = below.id;
  EXPECT_EQ(described(attachedImages({kPlain}, {below, above})), "/a.dmg: /dev/loop0=-\n");
}

TEST(AttachedImageListTest, OneImageMayBeAttachedTwice) {
  EXPECT_EQ(described(attachedImages({kPlain, {"/a.dmg", {{"loop5", "7:5"}}}},
                                     {mountOf("7:5", "/dev/loop5", "/mnt")})),
            "/a.dmg: /dev/loop0=-\n/a.dmg: /dev/loop5=/mnt\n");
}

TEST(AttachedImageListTest, ManyImagesTakeLittleTime) {
  constexpr int kMany = 10'000;
  std::vector<LoopDevice> loops;
  std::vector<Mount> mounts;
  for (int i = 0; i < kMany; ++i) {
    const std::string number = std::to_string(i);
    loops.push_back({"/" + number, {{"loop" + number, "7:" + number}}});
    mounts.push_back(mountOf("7:" + number, "/dev/loop" + number, "/mnt/" + number));
  }
  const std::vector<AttachedImage> images = attachedImages(loops, mounts);
  ASSERT_EQ(images.size(), std::size_t{kMany});
  EXPECT_EQ(described({images.back()}), "/9999: /dev/loop9999=/mnt/9999\n");
}

}  // namespace
}  // namespace launcher
