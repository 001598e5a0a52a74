#include <chrono>
#include <csignal>
#include <optional>

#include "base/Sleeper.h"
#include "discovery/ListingRun.h"
#include "tests/contract/Processes.h"
#include "tests/contract/discovery/ListingToolFixture.h"

namespace launcher {
namespace {

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
  const auto tool = makeListingToolAt(program());
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

TEST_F(ListingToolTest, RunsWithoutAnOutputHandler) {
  script("echo a; echo b > printed");
  const auto tool = makeListingToolAt(program());
  ASSERT_TRUE(tool->launch());
  tool->waitUntilExit();
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

TEST_F(ListingToolTest, AGrandchildThatHoldsTheOutputOpenIsNotAwaited) {
  script("sleep 300 & echo $!");
  auto tool = makeTool();
  ASSERT_TRUE(tool->launch());
  tool->waitUntilExit();
  ASSERT_TRUE(eventuallyExited());
  ASSERT_TRUE(eventually([&] { return output().ends_with('\n'); }));
  const pid_t grandchild = std::stoi(output());
  EXPECT_TRUE(isThere(grandchild)) << "holding the output";
  tool->setOutputHandler({});
  sendSignal(grandchild, SIGKILL);
}

TEST_F(ListingToolTest, AToolThatCannotBeStartedCallsNoHandler) {
  EXPECT_FALSE(makeTool()->launch()) << "missing";
  script("echo a", 0600);
  EXPECT_FALSE(makeTool()->launch()) << "not executable";
  EXPECT_FALSE(makeListingToolAt("")->launch()) << "no path";
  EXPECT_EQ(output(), "");
  EXPECT_EQ(seen_->exits, 0);
}

TEST_F(ListingToolTest, AToolThatCannotBeStartedDestroysTheOutputHandler) {
  auto held = std::make_shared<int>(0);
  const std::weak_ptr<int> watched = held;
  const auto tool = makeListingToolAt(program());
  tool->setOutputHandler([held = std::move(held)](std::string_view) { ++*held; });
  EXPECT_FALSE(tool->launch());
  EXPECT_TRUE(watched.expired());
}

TEST_F(ListingToolTest, TheToolMayGoWhileItsExitHandlerRuns) {
  script("echo a");
  std::atomic<bool> entered = false;
  std::atomic<bool> gone = false;
  std::atomic<std::size_t> seenLast = 0;
  auto tool = makeListingToolAt(program());
  tool->setExitHandler([&, ownText = std::string(100, 'x')] {
    entered = true;
    eventually([&] { return gone.load(); });
    seenLast = ownText.size();
  });
  ASSERT_TRUE(tool->launch());
  tool->waitUntilExit();
  ASSERT_TRUE(eventually([&] { return entered.load(); }));
  tool.reset();
  gone = true;
  EXPECT_TRUE(eventually([&] { return seenLast == 100U; }));
}

TEST_F(ListingToolTest, AWholeSearchJudgesWhatTheToolPrints) {
  script(
      "echo '<?xml version=\"1.0\"?><plist><dict><key>images</key>'; "
      "echo '<array/></dict></plist>'");
  const auto start = std::chrono::steady_clock::now();
  const auto location = extractSourceFromDMG(
      [this] { return makeListingToolAt(program()); }, *makeSleeper(),
      [](const PropertyList::Dictionary& listing) {
        return valueAt(listing, "images") == nullptr ? std::nullopt
                                                     : std::optional<std::string>("https://h/D/");
      });
  EXPECT_EQ(location, "https://h/D/");
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

}  // namespace
}  // namespace launcher
