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

const LoopDevice kPlain = {"/a.dmg", {{"loop0", "7:0"}}};
const LoopDevice kPartitioned = {"/b.dmg",
                                 {{"loop1", "7:1"}, {"loop1p1", "259:0"}, {"loop1p2", "259:1"}}};

TEST(AttachedImageListTest, BringsImagesAndMountsTogether) {
  const Case cases[] = {
      {{}, {}, ""},
      {{}, {{"7:0", "/dev/loop0", "/mnt"}}, ""},
      {{kPlain}, {}, "/a.dmg: /dev/loop0=-\n"},
      {{kPlain}, {{"7:0", "/dev/loop0", "/mnt"}}, "/a.dmg: /dev/loop0=/mnt\n"},
      {{kPlain}, {{"7:1", "/dev/loop1", "/mnt"}}, "/a.dmg: /dev/loop0=-\n"},
      {{kPlain}, {{"7:00", "/dev/loop00", "/mnt"}}, "/a.dmg: /dev/loop0=-\n"},
      {{kPartitioned},
       {{"259:1", "/dev/loop1p2", "/mnt"}},
       "/b.dmg: /dev/loop1=- /dev/loop1p1=- /dev/loop1p2=/mnt\n"},
      {{kPlain, kPartitioned},
       {{"259:0", "/dev/loop1p1", "/b"}, {"7:0", "/dev/loop0", "/a"}},
       "/a.dmg: /dev/loop0=/a\n/b.dmg: /dev/loop1=- /dev/loop1p1=/b /dev/loop1p2=-\n"},
  };
  for (const auto& [loops, mounts, expected] : cases) {
    EXPECT_EQ(described(attachedImages(loops, mounts)), expected);
  }
}

TEST(AttachedImageListTest, ADeviceMountedTwiceIsListedTwice) {
  EXPECT_EQ(described(attachedImages({kPlain}, {{"7:0", "/dev/loop0", "/z"},
                                                {"8:1", "/dev/sda1", "/"},
                                                {"7:0", "/dev/loop0", "/a"}})),
            "/a.dmg: /dev/loop0=/z /dev/loop0=/a\n");
}

TEST(AttachedImageListTest, TheNumberCountsBeforeTheSource) {
  EXPECT_EQ(described(attachedImages({kPlain, kPartitioned},
                                     {{"7:0", "/dev/loop1", "/a"}, {"7:1", "/dev/renamed", "/b"}})),
            "/a.dmg: /dev/loop0=/a\n/b.dmg: /dev/loop1=/b /dev/loop1p1=- /dev/loop1p2=-\n");
}

TEST(AttachedImageListTest, FileSystemsWithNumbersOfTheirOwnAreFoundBySource) {
  EXPECT_EQ(described(attachedImages({kPlain}, {{"0:45", "/dev/loop0", "/btrfs"}})),
            "/a.dmg: /dev/loop0=/btrfs\n");
}

TEST(AttachedImageListTest, OneImageMayBeAttachedTwice) {
  EXPECT_EQ(described(attachedImages({kPlain, {"/a.dmg", {{"loop5", "7:5"}}}},
                                     {{"7:5", "/dev/loop5", "/mnt"}})),
            "/a.dmg: /dev/loop0=-\n/a.dmg: /dev/loop5=/mnt\n");
}

TEST(AttachedImageListTest, ManyImagesAreNoMatter) {
  constexpr int kMany = 10'000;
  std::vector<LoopDevice> loops;
  std::vector<Mount> mounts;
  for (int i = 0; i < kMany; ++i) {
    const std::string number = std::to_string(i);
    loops.push_back({"/" + number, {{"loop" + number, "7:" + number}}});
    mounts.push_back({"7:" + number, "/dev/loop" + number, "/mnt/" + number});
  }
  const std::vector<AttachedImage> images = attachedImages(loops, mounts);
  ASSERT_EQ(images.size(), std::size_t{kMany});
  EXPECT_EQ(described({images.back()}), "/9999: /dev/loop9999=/mnt/9999\n");
}

}  // namespace
}  // namespace launcher
