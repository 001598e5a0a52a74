// The real listing tool on real loop devices, and the whole search on it.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "base/Sleeper.h"
#include "base/linux/Descriptor.h"
#include "base/linux/Spawn.h"
#include "discovery/DownloadOrigin.h"
#include "discovery/ImageRecords.h"
#include "discovery/ListingRun.h"
#include "tests/contract/ScratchFolder.h"
#include "tests/contract/discovery/FileAttributes.h"
#include "tests/contract/discovery/linux/attached-images/AttachedLoop.h"
#include "tests/contract/discovery/linux/attached-images/ToolRun.h"
#include "tests/doubles/FakeBundle.h"

namespace launcher {
namespace {

/// What the run lists for the image: lines of "device=mount point", in the tool's order.
std::string mountsOf(const std::string& image, const ToolRun& run = runTool("info -plist")) {
  const PropertyListReading reading = readPropertyList(run.output);
  if (!reading.value) return run.output;
  std::string text;
  for (const PropertyList& record : *valueAt(*reading.value->dictionary(), "images")->array()) {
    if (*valueAt(*record.dictionary(), "image-path")->text() != image) continue;
    for (const PropertyList& entity : *valueAt(*record.dictionary(), "system-entities")->array()) {
      text += *valueAt(*entity.dictionary(), "dev-entry")->text() + "=" +
              *valueAt(*entity.dictionary(), "mount-point")->text() + "\n";
    }
  }
  return text;
}

std::string line(const std::string& device, const std::string& place) {
  return device + "=" + place + "\n";
}

/// A folder with an image file. Skips the test if images cannot be mounted.
class MountedImagesTest : public testing::Test {
 protected:
  void SetUp() override {
    if (geteuid() != 0) GTEST_SKIP() << "needs root, to attach and mount images";
  }

  /// Runs a command of the shell in the folder. Whether it succeeded.
  bool shell(const std::string& command) const {
    const auto child = spawn({.path = "/bin/sh",
                              .arguments = {"-c", "exec >/dev/null 2>&1; cd '" + folder_.path() +
                                                      "' && " + command + " && touch succeeded"}});
    child->waitUntilExit();
    return std::filesystem::remove(folder_.file("succeeded"));
  }

  std::string image() const { return folder_.file("image.dmg"); }
  std::string place(const std::string& name) const { return folder_.file(name); }

  const ScratchFolder folder_;
};

TEST_F(MountedImagesTest, ListsAPartition) {
  if (!shell("truncate -s 4M image.dmg && truncate -s 1M volume && "
             "mkfs.ext4 -q -O ^has_journal volume && "
             "dd if=volume of=image.dmg bs=1M seek=1 conv=notrunc")) {
    GTEST_SKIP() << "mkfs.ext4 made no file system";
  }
  const AttachedLoop loop(image());
  if (!loop.error().empty()) GTEST_SKIP() << "cannot attach: " << loop.error();
  const std::string partition = loop.device() + "p1";
  if (!loop.addPartition(1, 1, 1)) GTEST_SKIP() << "the kernel makes no partitions";
  if (!eventually([&] { return std::filesystem::exists(partition); })) {
    GTEST_SKIP() << "the partition has no entry in /dev";
  }
  const MountedFolder mounted(partition, "ext4", place("mounted"));
  if (!mounted.error().empty()) GTEST_SKIP() << "cannot mount: " << mounted.error();
  EXPECT_EQ(mountsOf(image()), line(partition, place("mounted")));
}

TEST_F(MountedImagesTest, ListsAFileSystemWithADeviceNumberOfItsOwn) {
  if (!shell("truncate -s 128M image.dmg && mkfs.btrfs image.dmg")) {
    GTEST_SKIP() << "mkfs.btrfs made no file system";
  }
  const AttachedLoop loop(image());
  if (!loop.error().empty()) GTEST_SKIP() << "cannot attach: " << loop.error();
  const MountedFolder mounted(loop.device(), "btrfs", place("mounted"));
  if (!mounted.error().empty()) GTEST_SKIP() << "cannot mount: " << mounted.error();
  EXPECT_EQ(mountsOf(image()), line(loop.device(), place("mounted")));
}

/// An attached image that can be mounted.
class MountedVolumeTest : public MountedImagesTest {
 protected:
  void SetUp() override {
    MountedImagesTest::SetUp();
    if (IsSkipped()) return;
    if (!shell("mkdir -p content/folder && mksquashfs content image.dmg -quiet")) {
      GTEST_SKIP() << "mksquashfs made no image";
    }
    loop_.emplace(image());
    if (!loop_->error().empty()) GTEST_SKIP() << "cannot attach: " << loop_->error();
    const MountedFolder trial(device(), "squashfs", place("trial"));
    if (!trial.error().empty()) GTEST_SKIP() << "cannot mount: " << trial.error();
  }

  const std::string& device() const { return loop_->device(); }
  MountedFolder mounted(const std::string& folder) const { return {device(), "squashfs", folder}; }
  std::string lineOf(const std::string& folder) const { return line(device(), folder); }

  std::optional<AttachedLoop> loop_;
};

TEST_F(MountedVolumeTest, ListsEachPlaceInTheTablesOrder) {
  EXPECT_EQ(mountsOf(image()), "") << "attached, not mounted";
  const MountedFolder first = mounted(place("z"));
  EXPECT_EQ(mountsOf(image()), lineOf(place("z")));
  const MountedFolder second = mounted(place("a"));
  EXPECT_EQ(mountsOf(image()), lineOf(place("z")) + lineOf(place("a")));
}

TEST_F(MountedVolumeTest, MountPointsComeAsTheyAre) {
  for (const char* name : {"a b", "a\tb", "a\nb", "a\\b", "a\\040b", "a#b", "<&>\"'", "a\rb", " ",
                           "caf\u00e9", "cafe\u0301", "\U0001f600"}) {
    const MountedFolder volume = mounted(place(name));
    EXPECT_EQ(mountsOf(image()), lineOf(place(name)));
  }
  const MountedFolder volume = mounted(place("a\x01\xff"));
  EXPECT_EQ(mountsOf(image()), lineOf(place("a\ufffd\ufffd"))) << "what a list cannot hold";
}

TEST_F(MountedVolumeTest, ImagePathsComeAsTheyAre) {
  const MountedFolder volume = mounted(place("mounted"));
  std::string before = image();
  for (const char* name : {"a b.dmg", "a\nb\n\n", "a\\040b", "<&>", "caf\u00e9"}) {
    std::filesystem::rename(before, folder_.file(name));
    before = folder_.file(name);
    EXPECT_EQ(mountsOf(before), lineOf(place("mounted")));
  }
  std::filesystem::remove(before);
  EXPECT_EQ(mountsOf(before), "");
  EXPECT_EQ(mountsOf(before + " (deleted)"), lineOf(place("mounted")));
}

TEST_F(MountedVolumeTest, TheDeviceCountsNotTheSourcesName) {
  std::filesystem::create_symlink(device(), folder_.file("renamed"));
  const MountedFolder volume(folder_.file("renamed"), "squashfs", place("mounted"));
  const MountedFolder named(device(), "tmpfs", place("named"));
  ASSERT_EQ(named.error(), "");
  EXPECT_EQ(mountsOf(image()), lineOf(place("mounted")));
}

TEST_F(MountedVolumeTest, ListsOnlyWhereTheWholeVolumeIsSeen) {
  const MountedFolder volume = mounted(place("mounted"));
  const MountedFolder part(place("mounted/folder"), "", place("part"), MS_BIND);
  ASSERT_EQ(part.error(), "");
  EXPECT_EQ(mountsOf(image()), lineOf(place("mounted"))) << "a folder is no volume";
  const MountedFolder whole(place("mounted"), "", place("whole"), MS_BIND);
  EXPECT_EQ(mountsOf(image()), lineOf(place("mounted")) + lineOf(place("whole")));
}

TEST_F(MountedVolumeTest, ACoveredMountIsNotListed) {
  const std::string inside = place("above/mounted");
  const MountedFolder volume = mounted(inside);
  for (const std::string& folder : {inside, place("above")}) {
    const MountedFolder cover("none", "tmpfs", folder);
    ASSERT_EQ(cover.error(), "");
    EXPECT_EQ(mountsOf(image()), "") << "covered at " << folder;
  }
  EXPECT_EQ(mountsOf(image()), lineOf(inside)) << "uncovered";
}

TEST_F(MountedVolumeTest, AMountOfTheSameImageCoversToo) {
  const MountedFolder below = mounted(place("mounted"));
  const AttachedLoop again(image());
  ASSERT_EQ(again.error(), "");
  const MountedFolder above(again.device(), "squashfs", place("mounted"));
  EXPECT_EQ(mountsOf(image()), line(again.device(), place("mounted")));
}

TEST_F(MountedVolumeTest, ADeviceThatHasVanishedIsLeftOut) {
  const AttachedLoop another(image());
  ASSERT_EQ(another.error(), "");
  const MountedFolder vanished = mounted(place("vanished"));
  const MountedFolder left(another.device(), "squashfs", place("left"));
  const std::string name = std::filesystem::path(device()).filename();
  EXPECT_EQ(mountsOf(image(), runToolBeside("-t tmpfs none /sys/block/" + name)),
            line(another.device(), place("left")));
  const ToolRun run = runToolBeside("-t tmpfs none /sys");
  EXPECT_EQ(run.status, 0) << run.output;
  EXPECT_EQ(run.output.find("image-path"), std::string::npos) << run.output;
}

/// A mounted file system whose server never answers.
class SilentMount {
 public:
  SilentMount(const std::string& device, const std::string& type, const std::string& folder)
      : mounted_(
            device, type, folder, MS_RDONLY,
            "fd=" + std::to_string(server_.number()) + ",rootmode=40000,user_id=0,group_id=0") {}

  const std::string& error() const { return mounted_.error(); }

 private:
  Descriptor server_{open("/dev/fuse", O_RDWR | O_CLOEXEC)};
  MountedFolder mounted_;
};

TEST_F(MountedVolumeTest, AVolumeWhoseServerNeverAnswersIsListed) {
  const SilentMount silent(device(), "fuseblk", place("silent"));
  if (!silent.error().empty()) GTEST_SKIP() << "cannot mount: " << silent.error();
  EXPECT_EQ(mountsOf(image(), runTool("info -plist", "timeout 60")), lineOf(place("silent")));
}

TEST_F(MountedVolumeTest, AServerThatNeverAnswersDoesNotHoldUpTheListing) {
  const MountedFolder volume = mounted(place("mounted"));
  const MountedFolder below("none", "tmpfs", place("above/below"));
  const SilentMount silent("none", "fuse", place("above"));
  if (!silent.error().empty()) GTEST_SKIP() << "cannot mount: " << silent.error();
  EXPECT_EQ(mountsOf(image(), runTool("info -plist", "timeout 60")), lineOf(place("mounted")));
}

/// The whole search, made by an application that lies in `folder`.
std::optional<std::string> search(const std::string& resources, const std::string& folder) {
  FakeBundle bundle;
  bundle.resources = resources;
  bundle.folder = folder + "/VorxLauncher.app";
  const auto attribute = makeOriginAttribute();
  return extractSourceFromDMG(makeListingToolMaker(bundle), *makeSleeper(),
                              [&](const PropertyList::Dictionary& listing) {
                                return processDMGData(listing, bundle, [&](const Url& file) {
                                  return extractWhereAreYouFrom(file, *attribute);
                                });
                              });
}

TEST_F(MountedVolumeTest, FindsTheServerThatTheImageCameFrom) {
  if (!setAttribute(image(), "user.xdg.origin.url", "https://h:8443/D/Launcher.dmg")) {
    GTEST_SKIP() << "the file system of " << folder_.path() << " keeps no attributes";
  }
  std::filesystem::create_directory(folder_.file("bin"));
  std::filesystem::create_symlink(ATTACHED_IMAGES, folder_.file("bin/attached-images"));
  const std::string volume = place("Vorx \u00e9");
  const MountedFolder mountedVolume = mounted(volume);

  EXPECT_EQ(search(folder_.path(), volume), "https://h:8443/D/");
  EXPECT_EQ(search(folder_.path(), volume + "/folder"), std::nullopt);
  EXPECT_EQ(search(folder_.path(), folder_.path()), std::nullopt);
}

}  // namespace
}  // namespace launcher
