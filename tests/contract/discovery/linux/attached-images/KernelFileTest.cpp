#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "discovery/linux/attached-images/KernelFile.h"
#include "tests/contract/ScratchFolder.h"

namespace launcher {
namespace {

using namespace std::string_literals;

TEST(KernelFileTest, ReadsAllOfAFile) {
  const ScratchFolder folder;
  for (const std::string& text : {""s, "\n"s, "a\0b\n"s, std::string(16384, 'a'),
                                  std::string(16385, 'a'), std::string(1'000'000, 'a')}) {
    std::ofstream(folder.file("file")) << text;
    EXPECT_EQ(readKernelFile(folder.file("file")), text) << text.size() << " bytes";
  }
}

TEST(KernelFileTest, ReadsFilesWhoseSizeTheKernelDoesNotTell) {
  EXPECT_TRUE(readKernelFile("/proc/self/mountinfo").value_or("").ends_with('\n'));
}

TEST(KernelFileTest, WhatCannotBeReadIsAbsent) {
  EXPECT_EQ(readKernelFile("/proc/self/missing"), std::nullopt);
  EXPECT_EQ(readKernelFile("/proc/self"), std::nullopt) << "a folder";
  EXPECT_EQ(readKernelFile("/proc/self/mem"), std::nullopt) << "a reading that fails";
}

}  // namespace
}  // namespace launcher
