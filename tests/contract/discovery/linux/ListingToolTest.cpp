#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <optional>
#include <string>

#include "base/Sleeper.h"
#include "discovery/ListingRun.h"
#include "tests/contract/Processes.h"
#include "tests/contract/discovery/ListingToolFixture.h"
#include "tests/contract/linux/OwnResources.h"
#include "tests/doubles/FakeBundle.h"

namespace launcher {
namespace {

/// Where the tool lies, and which resources of this process it uses.
class LinuxListingToolTest : public ListingToolTest {};

TEST_F(LinuxListingToolTest, LiesAmongTheResources) {
  FakeBundle bundle;
  bundle.resources = folder_.path();
  std::filesystem::create_directory(folder_.file("bin"));
  script("echo a > started");
  std::filesystem::rename(program(), folder_.file("bin/attached-images"));
  const auto tool = makeListingToolMaker(bundle)();
  ASSERT_TRUE(tool->launch());
  tool->waitUntilExit();
  EXPECT_TRUE(std::filesystem::exists(folder_.file("started")));
  bundle.resources = std::nullopt;
  EXPECT_FALSE(makeListingToolMaker(bundle)()->launch());
}

TEST_F(LinuxListingToolTest, WhatCannotBeStartedLeavesNothingBehind) {
  const OwnResources before;
  EXPECT_FALSE(makeTool()->launch());
  EXPECT_TRUE(eventually([&] { return OwnResources().addNothingTo(before); }));
}

TEST_F(LinuxListingToolTest, NothingIsLeftBesideAGrandchildThatHoldsTheOutputOpen) {
  script("sleep 300 & echo $!");
  const OwnResources before;
  auto tool = makeTool();
  ASSERT_TRUE(tool->launch());
  tool->waitUntilExit();
  ASSERT_TRUE(eventually([&] { return output().ends_with('\n'); }));
  const pid_t grandchild = std::stoi(output());
  EXPECT_TRUE(isThere(grandchild)) << "holding the output";

  tool->setOutputHandler({});
  tool.reset();
  EXPECT_TRUE(eventually([&] { return OwnResources().addNothingTo(before); }));
  sendSignal(grandchild, SIGKILL);
}

/// Keeps this process from opening anything for a while.
class NoDescriptors {
 public:
  NoDescriptors() {
    getrlimit(RLIMIT_NOFILE, &before_);
    const rlimit none{0, before_.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
  }
  NoDescriptors(const NoDescriptors&) = delete;
  NoDescriptors& operator=(const NoDescriptors&) = delete;
  ~NoDescriptors() { setrlimit(RLIMIT_NOFILE, &before_); }

 private:
  rlimit before_{};
};

TEST_F(LinuxListingToolTest, WithoutDescriptorsItCannotBeStarted) {
  script("echo a");
  const auto tool = makeTool();
  {
    const NoDescriptors none;
    EXPECT_FALSE(tool->launch());
  }
  EXPECT_EQ(output(), "");
  EXPECT_EQ(seen_->exits, 0);
}

TEST_F(LinuxListingToolTest, LeavesNothingBehind) {
  script("echo a");
  const OwnResources before;
  for (int run = 1; run <= 50; ++run) {
    const auto tool = makeTool();
    ASSERT_TRUE(tool->launch());
    tool->waitUntilExit();
    ASSERT_TRUE(eventuallyExited(run));
  }
  EXPECT_TRUE(eventually([&] { return OwnResources().addNothingTo(before); }));
  EXPECT_TRUE(eventually(hasNoChildren));
}

TEST_F(LinuxListingToolTest, ASearchLeavesNothingBehindBesideAGrandchild) {
  script("sleep 300 & echo $! > grandchild");
  const OwnResources before;
  EXPECT_EQ(extractSourceFromDMG([this] { return makeListingToolAt(program()); }, *makeSleeper(),
                                 [](const PropertyList::Dictionary&) { return std::nullopt; }),
            std::nullopt);
  EXPECT_TRUE(eventually([&] { return OwnResources().addNothingTo(before); }));
  sendSignal(std::stoi("0" + contentOf(folder_.file("grandchild"))), SIGKILL);
}

}  // namespace
}  // namespace launcher
