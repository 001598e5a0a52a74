// The real listing tool on real loop devices, and the whole search on it.

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "base/Sleeper.h"
#include "base/linux/Spawn.h"
#include "discovery/DownloadOrigin.h"
#include "discovery/ImageRecords.h"
#include "discovery/ListingRun.h"
#include "tests/contract/Pipe.h"
#include "tests/contract/ScratchFolder.h"
#include "tests/contract/discovery/FileAttributes.h"
#include "tests/contract/discovery/linux/attached-images/AttachedLoop.h"
#include "tests/doubles/FakeBundle.h"

namespace launcher {
namespace {

/// What the tool prints, both streams joined, and how it ends.
struct ToolRun {
  std::string output;
  int status = -1;
};

/// Runs the tool through a shell, so that the test can redirect its output.
ToolRun runTool(const std::string& arguments) {
  const std::string command = "'" ATTACHED_IMAGES "' " + arguments;
  Pipe pipe;
  const auto child = spawn({.path = "/bin/sh",
                            .arguments = {"-c", command + "; echo \"status $?\""},
                            .output = pipe.writer()});
  ToolRun run{pipe.all()};
  const std::size_t status = run.output.rfind("status ");
  run.status = std::stoi(run.output.substr(status + 7));
  run.output.resize(status);
  return run;
}

TEST(AttachedImagesToolTest, ExplainsItself) {
  const ToolRun run = runTool("--help");
  EXPECT_EQ(run.status, 0);
  EXPECT_TRUE(run.output.find("attached-images info -plist") != std::string::npos) << run.output;
}

TEST(AttachedImagesToolTest, RefusesOtherArguments) {
  for (const char* arguments :
       {"", "-plist", "info plist", "info -plist more", "info ''", "--Help", "help", "Info"}) {
    const ToolRun run = runTool(arguments);
    EXPECT_EQ(run.status, 2) << arguments;
    EXPECT_TRUE(run.output.starts_with("attached-images: ")) << run.output;
  }
  EXPECT_EQ(runTool("wrong 2>/dev/null").output, "") << "all of it is an error's text";
}

TEST(AttachedImagesToolTest, PrintsAPropertyListOrATable) {
  const ToolRun list = runTool("info -plist");
  EXPECT_EQ(list.status, 0);
  const PropertyListReading reading = readPropertyList(list.output);
  ASSERT_TRUE(reading.value) << list.output;
  EXPECT_NE(valueAt(*reading.value->dictionary(), "images")->array(), nullptr);

  const ToolRun table = runTool("info");
  EXPECT_EQ(table.status, 0);
  EXPECT_FALSE(readPropertyList(table.output).value);
}

TEST(AttachedImagesToolTest, ReportsThatItCannotPrint) {
  for (const char* arguments : {"info -plist >/dev/full", "info >/dev/full", "--help >/dev/full",
                                "info >&-", "--help >&-"}) {
    const ToolRun run = runTool(arguments);
    EXPECT_EQ(run.status, 1) << arguments;
    EXPECT_TRUE(run.output.starts_with("attached-images: ")) << run.output;
  }
}

TEST(AttachedImagesToolTest, ReportsThatItsReaderHasGone) {
  const ScratchFolder folder;
  const std::string commands = "cd '" + folder.path() +
                               "'; (while [ ! -e gone ]; do sleep 0.01; done; '" ATTACHED_IMAGES
                               "' info -plist 2>errors; echo $? >status) | (exec <&-; touch gone)";
  const auto shell = spawn({.path = "/bin/sh", .arguments = {"-c", commands}});
  shell->waitUntilExit();
  EXPECT_EQ(contentOf(folder.file("status")), "1\n");
  EXPECT_TRUE(contentOf(folder.file("errors")).starts_with("attached-images: the output: "));
}

/// An image file that the test attaches and mounts. Skips the test if that is impossible.
class AttachedImagesLinuxTest : public testing::Test {
 protected:
  void SetUp() override {
    if (geteuid() != 0) GTEST_SKIP() << "needs root, to attach and mount images";
    bundle_.resources = folder_.path();
    std::filesystem::create_directory(folder_.file("bin"));
    std::filesystem::create_symlink(ATTACHED_IMAGES, folder_.file("bin/attached-images"));
    std::filesystem::create_directory(folder_.file("content"));
    std::ofstream(folder_.file("content/file")) << "content\n";
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
  bool makeSquashImage() const { return shell("mksquashfs content image.dmg -quiet"); }

  /// What the tool lists for the image: lines of "device" or "device=mount point", in the tool's
  /// order.
  static std::string entities(const std::string& image) {
    const ToolRun run = runTool("info -plist");
    const PropertyListReading reading = readPropertyList(run.output);
    if (!reading.value) return run.output;
    std::string text;
    for (const PropertyList& record : *valueAt(*reading.value->dictionary(), "images")->array()) {
      if (*valueAt(*record.dictionary(), "image-path")->text() == image) text += entitiesOf(record);
    }
    return text;
  }

  /// The whole search, made by an application that lies in `folder`.
  std::optional<std::string> search(const std::string& folder) {
    bundle_.folder = folder + "/VorxLauncher.app";
    const auto attribute = makeOriginAttribute();
    return extractSourceFromDMG(makeListingToolMaker(bundle_), *makeSleeper(),
                                [&](const PropertyList::Dictionary& listing) {
                                  return processDMGData(listing, bundle_, [&](const Url& file) {
                                    return extractWhereAreYouFrom(file, *attribute);
                                  });
                                });
  }

  const ScratchFolder folder_;
  FakeBundle bundle_;

 private:
  static std::string entitiesOf(const PropertyList& record) {
    std::string text;
    for (const PropertyList& entity : *valueAt(*record.dictionary(), "system-entities")->array()) {
      const PropertyList* mountPoint = valueAt(*entity.dictionary(), "mount-point");
      text += *valueAt(*entity.dictionary(), "dev-entry")->text();
      if (mountPoint != nullptr) text += "=" + *mountPoint->text();
      text += "\n";
    }
    return text;
  }
};

TEST_F(AttachedImagesLinuxTest, ListsAnImageWhereverItIsMounted) {
  if (!makeSquashImage()) GTEST_SKIP() << "mksquashfs made no image";
  EXPECT_EQ(entities(image()), "") << "not attached";
  const AttachedLoop loop(image());
  if (!loop.error().empty()) GTEST_SKIP() << "cannot attach: " << loop.error();
  EXPECT_EQ(entities(image()), loop.device() + "\n") << "attached";

  const std::string first = folder_.file("a b\nc\\040\u00e9");
  const MountedFolder mounted(loop.device(), "squashfs", first);
  if (!mounted.error().empty()) GTEST_SKIP() << "cannot mount: " << mounted.error();
  EXPECT_EQ(entities(image()), loop.device() + "=" + first + "\n") << "mounted";

  const std::string second = folder_.file("again");
  const MountedFolder again(loop.device(), "squashfs", second);
  ASSERT_EQ(again.error(), "");
  EXPECT_EQ(entities(image()),
            loop.device() + "=" + first + "\n" + loop.device() + "=" + second + "\n")
      << "mounted twice";

  const ToolRun table = runTool("info");
  EXPECT_NE(table.output.find(image() + "\n"), std::string::npos) << table.output;
}

TEST_F(AttachedImagesLinuxTest, ListsOnlyWhereTheWholeVolumeIsSeen) {
  if (!shell("mkdir content/folder") || !makeSquashImage()) GTEST_SKIP() << "no image was made";
  const AttachedLoop loop(image());
  if (!loop.error().empty()) GTEST_SKIP() << "cannot attach: " << loop.error();
  const std::string place = folder_.file("mounted");
  const MountedFolder mounted(loop.device(), "squashfs", place);
  if (!mounted.error().empty()) GTEST_SKIP() << "cannot mount: " << mounted.error();

  const MountedFolder named(loop.device(), "tmpfs", folder_.file("named"));
  ASSERT_EQ(named.error(), "");
  EXPECT_EQ(entities(image()), loop.device() + "=" + place + "\n") << "a name is no device";
  const MountedFolder bound(place + "/folder", "", folder_.file("bound"), MS_BIND);
  ASSERT_EQ(bound.error(), "");
  EXPECT_EQ(entities(image()), loop.device() + "=" + place + "\n") << "a folder is no volume";
  const MountedFolder cover("none", "tmpfs", place);
  ASSERT_EQ(cover.error(), "");
  EXPECT_EQ(entities(image()), loop.device() + "\n") << "covered";
}

TEST_F(AttachedImagesLinuxTest, ListsPartitions) {
  if (!shell("truncate -s 4M image.dmg && truncate -s 1M volume && "
             "mkfs.ext4 -q -O ^has_journal volume && "
             "dd if=volume of=image.dmg bs=1M seek=1 conv=notrunc")) {
    GTEST_SKIP() << "mkfs.ext4 made no file system";
  }
  const AttachedLoop loop(image());
  if (!loop.error().empty()) GTEST_SKIP() << "cannot attach: " << loop.error();
  const std::string partition = loop.device() + "p1";
  if (!loop.addPartition(1, 1, 1) || !loop.addPartition(2, 2, 1)) {
    GTEST_SKIP() << "the kernel makes no partitions";
  }
  if (!eventually([&] { return std::filesystem::exists(partition); })) {
    GTEST_SKIP() << "the partition has no entry in /dev";
  }
  const MountedFolder mounted(partition, "ext4", folder_.file("mounted"));
  if (!mounted.error().empty()) GTEST_SKIP() << "cannot mount: " << mounted.error();
  EXPECT_EQ(entities(image()), loop.device() + "\n" + partition + "=" + folder_.file("mounted") +
                                   "\n" + loop.device() + "p2\n");
}

TEST_F(AttachedImagesLinuxTest, ListsAFileSystemWithADeviceNumberOfItsOwn) {
  if (!shell("truncate -s 128M image.dmg && mkfs.btrfs image.dmg")) {
    GTEST_SKIP() << "mkfs.btrfs made no file system";
  }
  const AttachedLoop loop(image());
  if (!loop.error().empty()) GTEST_SKIP() << "cannot attach: " << loop.error();
  const MountedFolder mounted(loop.device(), "btrfs", folder_.file("mounted"));
  if (!mounted.error().empty()) GTEST_SKIP() << "cannot mount: " << mounted.error();
  EXPECT_EQ(entities(image()), loop.device() + "=" + folder_.file("mounted") + "\n");
}

TEST_F(AttachedImagesLinuxTest, ListsAnImageWhoseFileIsGone) {
  if (!makeSquashImage()) GTEST_SKIP() << "mksquashfs made no image";
  const AttachedLoop loop(image());
  if (!loop.error().empty()) GTEST_SKIP() << "cannot attach: " << loop.error();
  std::filesystem::remove(image());
  EXPECT_EQ(entities(image()), "");
  EXPECT_EQ(entities(image() + " (deleted)"), loop.device() + "\n");
}

TEST_F(AttachedImagesLinuxTest, FindsTheServerThatTheImageCameFrom) {
  if (!makeSquashImage()) GTEST_SKIP() << "mksquashfs made no image";
  if (!setAttribute(image(), "user.xdg.origin.url", "https://h:8443/D/Launcher.dmg")) {
    GTEST_SKIP() << "the file system of " << folder_.path() << " keeps no attributes";
  }
  const AttachedLoop loop(image());
  if (!loop.error().empty()) GTEST_SKIP() << "cannot attach: " << loop.error();
  const std::string place = folder_.file("Vorx \u00e9");
  const MountedFolder mounted(loop.device(), "squashfs", place);
  if (!mounted.error().empty()) GTEST_SKIP() << "cannot mount: " << mounted.error();

  EXPECT_EQ(search(place), "https://h:8443/D/");
  EXPECT_EQ(search(place + "/folder"), std::nullopt);
  EXPECT_EQ(search(folder_.path()), std::nullopt);
}

}  // namespace
}  // namespace launcher
