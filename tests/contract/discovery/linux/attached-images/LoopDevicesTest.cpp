#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

#include "discovery/linux/attached-images/LoopDevices.h"
#include "tests/contract/ScratchFolder.h"

namespace launcher {
namespace {

/// A folder like the kernel's list of block devices.
class LoopDevicesTest : public testing::Test {
 protected:
  void addDevice(const std::string& name, const std::string& number) const {
    std::filesystem::create_directories(folder_.file(name));
    std::ofstream(folder_.file(name + "/dev")) << number << "\n";
  }

  void attach(const std::string& name, const std::string& image) const {
    std::filesystem::create_directories(folder_.file(name + "/loop"));
    std::ofstream(folder_.file(name + "/loop/backing_file")) << image;
  }

  std::string devices() const {
    std::string text;
    for (const LoopDevice& loop : readLoopDevices(folder_.path())) {
      text += loop.imagePath + ":";
      for (const BlockDevice& device : loop.devices) {
        text += " " + device.name + "=" + device.number;
      }
      text += "\n";
    }
    return text;
  }

  const ScratchFolder folder_;
};

TEST_F(LoopDevicesTest, ReadsDevicesWithImagesInTheOrderOfTheirNumbers) {
  for (const int loop : {10, 2, 0, 1}) {
    addDevice("loop" + std::to_string(loop), "7:" + std::to_string(loop));
  }
  attach("loop10", "/c.dmg\n");
  attach("loop2", "/b.dmg\n");
  attach("loop0", "/a.dmg\n");
  EXPECT_EQ(devices(), "/a.dmg: loop0=7:0\n/b.dmg: loop2=7:2\n/c.dmg: loop10=7:10\n");
}

TEST_F(LoopDevicesTest, PartitionsFollowTheirDevice) {
  addDevice("loop1", "7:1");
  addDevice("loop1p10", "259:2");
  addDevice("loop1p2", "259:1");
  addDevice("loop11", "7:11");
  attach("loop1", "/a.dmg\n");
  EXPECT_EQ(devices(), "/a.dmg: loop1=7:1 loop1p2=259:1 loop1p10=259:2\n");
}

TEST_F(LoopDevicesTest, OtherDevicesAreLeftOut) {
  for (const char* name : {"sda", "sda1", "loop", "loopx", "loop1x", "loop1p", "loop1px",
                           "loop1p1x", "xloop1", "loop-1", "loop99999999999", "dm-0", "loop2p1"}) {
    addDevice(name, "7:1");
    attach(name, "/a.dmg\n");
  }
  EXPECT_EQ(devices(), "");
}

TEST_F(LoopDevicesTest, ImagePathsComeAsTheyAre) {
  const struct {
    std::string told;
    std::string path;
  } cases[] = {
      {"/a b.dmg\n", "/a b.dmg"},
      {"/a\nb\n\n", "/a\nb\n"},
      {"/a.dmg (deleted)\n", "/a.dmg (deleted)"},
      {"/\xff\n", "/\xff"},
      {"/a.dmg", "/a.dmg"},
  };
  addDevice("loop0", "7:0");
  for (const auto& [told, path] : cases) {
    attach("loop0", told);
    EXPECT_EQ(devices(), path + ": loop0=7:0\n");
  }
}

TEST_F(LoopDevicesTest, WhatCannotBeReadIsLeftOut) {
  addDevice("loop0", "7:0");
  attach("loop0", "");
  addDevice("loop1", "7:1");
  attach("loop1", "\n");
  addDevice("loop2", "7:2");
  std::filesystem::create_directories(folder_.file("loop2/loop/backing_file"));
  std::filesystem::create_symlink("/missing", folder_.file("loop3"));
  attach("loop4", "/no number.dmg\n");
  addDevice("loop5", "7:5");
  attach("loop5", "/a.dmg\n");
  EXPECT_EQ(devices(), "/no number.dmg:\n/a.dmg: loop5=7:5\n");
}

TEST_F(LoopDevicesTest, AMissingFolderIsAnError) {
  EXPECT_THROW(readLoopDevices(folder_.file("missing")), std::system_error);
}

}  // namespace
}  // namespace launcher
