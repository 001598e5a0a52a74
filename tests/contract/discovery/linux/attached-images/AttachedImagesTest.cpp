// The listing tool as a command.

#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

#include "base/linux/Spawn.h"
#include "discovery/PropertyList.h"
#include "tests/contract/ScratchFolder.h"
#include "tests/contract/discovery/linux/attached-images/ToolRun.h"

namespace launcher {
namespace {

TEST(AttachedImagesToolTest, ExplainsItself) {
  const ToolRun run = runTool("--help");
  EXPECT_EQ(run.status, 0);
  EXPECT_TRUE(run.output.find("attached-images info -plist") != std::string::npos) << run.output;
}

TEST(AttachedImagesToolTest, RefusesOtherArguments) {
  for (const char* arguments : {"", "info", "-plist", "info plist", "info -plist more", "info ''",
                                "--Help", "help", "Info"}) {
    const ToolRun run = runTool(arguments);
    EXPECT_EQ(run.status, 2) << arguments;
    EXPECT_TRUE(run.output.starts_with("attached-images: ")) << run.output;
  }
  EXPECT_EQ(runTool("wrong 2>/dev/null").output, "") << "all of it is an error's text";
}

TEST(AttachedImagesToolTest, PrintsAPropertyList) {
  const ToolRun list = runTool("info -plist");
  EXPECT_EQ(list.status, 0);
  const PropertyListReading reading = readPropertyList(list.output);
  ASSERT_TRUE(reading.value) << list.output;
  EXPECT_NE(valueAt(*reading.value->dictionary(), "images")->array(), nullptr);
}

TEST(AttachedImagesToolTest, ReportsThatItCannotPrint) {
  for (const char* arguments :
       {"info -plist >/dev/full", "--help >/dev/full", "info -plist >&-", "--help >&-"}) {
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

TEST(AttachedImagesToolTest, ReportsThatItCannotReadTheMountTable) {
  if (geteuid() != 0) GTEST_SKIP() << "needs root, to replace the table";
  const ToolRun run = runToolBeside("--bind /proc/$$/mem /proc/$$/mountinfo");
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(run.output.starts_with("attached-images: the mount table: ")) << run.output;
}

}  // namespace
}  // namespace launcher
