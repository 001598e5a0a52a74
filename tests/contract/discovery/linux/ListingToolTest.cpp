#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "base/Sleeper.h"
#include "discovery/ListingRun.h"
#include "discovery/ListingTool.h"
#include "tests/contract/Eventually.h"
#include "tests/contract/Processes.h"
#include "tests/contract/ScratchFolder.h"
#include "tests/contract/linux/OwnResources.h"
#include "tests/doubles/FakeBundle.h"

namespace launcher {
namespace {

/// What the handlers were called with. A tool's end may be told after the test's own.
struct Seen {
  std::mutex mutex;
  std::string output;
  std::thread::id outputThread;
  std::atomic<std::thread::id> exitThread;
  std::atomic<int> exits = 0;
};

/// Runs of a shell script in the tool's place, each watched by handlers of its own.
class ListingToolTest : public testing::Test {
 protected:
  ListingToolTest() {
    bundle_.resources = folder_.path();
    std::filesystem::create_directory(folder_.file("bin"));
  }

  /// Puts a script into the tool's place.
  void script(const std::string& commands, mode_t mode = 0700) const {
    std::ofstream(program()) << "#!/bin/sh\ncd '" << folder_.path() << "'\n" << commands;
    chmod(program().c_str(), mode);
  }

  std::string program() const { return folder_.file("bin/attached-images"); }

  /// A new run, watched but not started.
  std::shared_ptr<ListingTool> makeTool() {
    auto tool = makeListingToolMaker(bundle_)();
    tool->setOutputHandler([seen = seen_](std::string_view bytes) {
      const std::lock_guard lock(seen->mutex);
      seen->output += bytes;
      seen->outputThread = std::this_thread::get_id();
    });
    tool->setExitHandler([seen = seen_] {
      seen->exitThread = std::this_thread::get_id();
      ++seen->exits;
    });
    return tool;
  }

  std::string output() {
    const std::lock_guard lock(seen_->mutex);
    return seen_->output;
  }

  bool eventuallyPrinted(const std::string& text) {
    return eventually([&] { return output() == text; });
  }

  bool eventuallyExited(int times = 1) {
    return eventually([&] { return seen_->exits == times; });
  }

  const ScratchFolder folder_;
  FakeBundle bundle_;
  const std::shared_ptr<Seen> seen_ = std::make_shared<Seen>();
};

TEST_F(ListingToolTest, AsksForAPropertyList) {
  script("echo \"$#: $*\"");
  const auto tool = makeTool();
  ASSERT_TRUE(tool->launch());
  tool->waitUntilExit();
  EXPECT_TRUE(eventuallyPrinted("2: info -plist\n")) << output();
  EXPECT_TRUE(eventuallyExited());
}

TEST_F(ListingToolTest, JoinsBothStreamsInTheirOrder) {
  script("echo a; echo b >&2; echo c; echo d >&2");
  const auto tool = makeTool();
  ASSERT_TRUE(tool->launch());
  EXPECT_TRUE(eventuallyPrinted("a\nb\nc\nd\n")) << output();
}

TEST_F(ListingToolTest, CallsTheHandlersOnOtherThreads) {
  script("echo a");
  const auto tool = makeTool();
  ASSERT_TRUE(tool->launch());
  ASSERT_TRUE(eventuallyPrinted("a\n"));
  ASSERT_TRUE(eventuallyExited());
  tool->setOutputHandler({});
  EXPECT_NE(seen_->outputThread, std::this_thread::get_id());
  EXPECT_NE(seen_->exitThread.load(), std::this_thread::get_id());
  EXPECT_NE(seen_->exitThread.load(), seen_->outputThread);
}

TEST_F(ListingToolTest, NoHandlerIsCalledBeforeTheLaunch) {
  script("echo a");
  const auto tool = makeTool();
  EXPECT_EQ(output(), "");
  EXPECT_EQ(seen_->exits, 0);
}

TEST_F(ListingToolTest, ManyPiecesComeInTheirOrder) {
  script("i=0; while [ $i -lt 3000 ]; do echo $i; i=$((i+1)); done");
  const auto tool = makeTool();
  ASSERT_TRUE(tool->launch());
  std::string expected;
  for (int i = 0; i < 3000; ++i) expected += std::to_string(i) + "\n";
  EXPECT_TRUE(eventuallyPrinted(expected));
}

TEST_F(ListingToolTest, FiftyMegabytesDoNotBlock) {
  script("head -c 50000000 /dev/zero");
  const auto tool = makeTool();
  ASSERT_TRUE(tool->launch());
  tool->waitUntilExit();
  EXPECT_TRUE(eventually([&] { return output().size() == 50'000'000; })) << output().size();
}

TEST_F(ListingToolTest, ATextOfAnyBytesComesThrough) {
  script(R"(printf 'a\000b\377\n\n')");
  const auto tool = makeTool();
  ASSERT_TRUE(tool->launch());
  EXPECT_TRUE(eventuallyPrinted(std::string("a\0b\xff\n\n", 6)));
}

TEST_F(ListingToolTest, OutputAfterTheRemovalIsLost) {
  script("echo a; while [ ! -e go ]; do sleep 0.01; done; echo b; echo c > went");
  const auto tool = makeTool();
  ASSERT_TRUE(tool->launch());
  ASSERT_TRUE(eventuallyPrinted("a\n"));
  tool->setOutputHandler({});
  std::ofstream(folder_.file("go")).flush();
  tool->waitUntilExit();
  EXPECT_TRUE(eventuallyExited());
  EXPECT_EQ(output(), "a\n");
}

TEST_F(ListingToolTest, TheRemovalWaitsForACallUnderWay) {
  script("echo a");
  std::atomic<bool> called = false;
  std::atomic<bool> returned = false;
  const auto tool = makeListingToolMaker(bundle_)();
  tool->setOutputHandler([&](std::string_view) {
    called = true;
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    returned = true;
  });
  ASSERT_TRUE(tool->launch());
  ASSERT_TRUE(eventually([&] { return called.load(); }));
  tool->setOutputHandler({});
  EXPECT_TRUE(returned);
}

TEST_F(ListingToolTest, TheHandlerMayBeRemovedTwice) {
  script("echo a");
  const auto tool = makeTool();
  ASSERT_TRUE(tool->launch());
  ASSERT_TRUE(eventuallyPrinted("a\n"));
  tool->setOutputHandler({});
  tool->setOutputHandler({});
}

TEST_F(ListingToolTest, NobodyNeedsToListen) {
  script("echo a; echo b > printed");
  const auto tool = makeListingToolMaker(bundle_)();
  ASSERT_TRUE(tool->launch());
  tool->waitUntilExit();
}

TEST_F(ListingToolTest, AGrandchildThatHoldsTheOutputOpenIsNotAwaited) {
  script("sleep 300 & echo $!");
  const OwnResources before;
  auto tool = makeTool();
  ASSERT_TRUE(tool->launch());
  tool->waitUntilExit();
  ASSERT_TRUE(eventuallyExited());
  ASSERT_TRUE(eventually([&] { return output().ends_with('\n'); }));
  const pid_t grandchild = std::stoi(output());
  EXPECT_TRUE(isThere(grandchild)) << "holding the output";

  tool->setOutputHandler({});
  tool.reset();
  EXPECT_TRUE(eventually([&] { return OwnResources() == before; }));
  sendSignal(grandchild, SIGKILL);
}

TEST_F(ListingToolTest, HowTheToolEndsDoesNotCount) {
  for (const char* commands : {"exit 0", "exit 1", "kill -9 $$", "kill -TERM $$"}) {
    script(commands);
    seen_->exits = 0;
    const auto tool = makeTool();
    ASSERT_TRUE(tool->launch()) << commands;
    tool->waitUntilExit();
    EXPECT_TRUE(eventuallyExited()) << commands;
  }
}

TEST_F(ListingToolTest, WhatCannotBeStartedCallsNobody) {
  const OwnResources before;
  EXPECT_FALSE(makeTool()->launch()) << "missing";
  script("echo a", 0600);
  EXPECT_FALSE(makeTool()->launch()) << "not executable";
  bundle_.resources = std::nullopt;
  EXPECT_FALSE(makeTool()->launch()) << "no resources";
  EXPECT_TRUE(eventually([&] { return OwnResources() == before; }));
  EXPECT_EQ(output(), "");
  EXPECT_EQ(seen_->exits, 0);
}

/// Lets this process open nothing more for a while.
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

TEST_F(ListingToolTest, WithoutDescriptorsItCannotBeStarted) {
  script("echo a");
  const auto tool = makeTool();
  {
    const NoDescriptors none;
    EXPECT_FALSE(tool->launch());
  }
  EXPECT_EQ(output(), "");
  EXPECT_EQ(seen_->exits, 0);
}

TEST_F(ListingToolTest, LeavesNothingBehind) {
  script("echo a");
  const OwnResources before;
  for (int run = 1; run <= 50; ++run) {
    const auto tool = makeTool();
    ASSERT_TRUE(tool->launch());
    tool->waitUntilExit();
    ASSERT_TRUE(eventuallyExited(run));
  }
  EXPECT_TRUE(eventually([&] { return OwnResources() == before; }));
  EXPECT_TRUE(eventually(hasNoChildren));
}

TEST_F(ListingToolTest, AWholeSearchJudgesWhatTheToolPrints) {
  script("echo '<plist><dict><key>images</key>'; echo '<array/></dict></plist>'");
  const auto start = std::chrono::steady_clock::now();
  const auto location = extractSourceFromDMG(
      makeListingToolMaker(bundle_), *makeSleeper(), [](const PropertyList::Dictionary& listing) {
        return valueAt(listing, "images") == nullptr ? std::nullopt
                                                     : std::optional<std::string>("https://h/D/");
      });
  EXPECT_EQ(location, "https://h/D/");
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

TEST_F(ListingToolTest, ASearchLeavesNothingBehindBesideAGrandchild) {
  script("sleep 300 & echo $! > grandchild");
  const OwnResources before;
  EXPECT_EQ(extractSourceFromDMG(makeListingToolMaker(bundle_), *makeSleeper(),
                                 [](const PropertyList::Dictionary&) { return std::nullopt; }),
            std::nullopt);
  EXPECT_TRUE(eventually([&] { return OwnResources() == before; }));
  sendSignal(std::stoi("0" + contentOf(folder_.file("grandchild"))), SIGKILL);
}

}  // namespace
}  // namespace launcher
