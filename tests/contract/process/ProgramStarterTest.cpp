#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <string>
#include <vector>

#include "base/Unicode.h"
#include "process/ProgramStarter.h"
#include "tests/InThreads.h"
#include "tests/contract/process/NamedProcess.h"

namespace launcher {
namespace {

std::string own() { return "zp" + std::to_string(getpid()); }

TEST(ProgramStarterTest, PassesExactlyTheseArgumentsWithoutAShell) {
  const NamedProcess process(own(), "announce", {"-l", "", "a b", "$HOME;\"x\" *", "\u00e9"});
  EXPECT_PRED2(canonicallyEqual, process.announced(),  // macOS passes letters on decomposed
               std::to_string(process.pid()) + "\n[-l]\n[]\n[a b]\n[$HOME;\"x\" *]\n[\u00e9]\n");
}

TEST(ProgramStarterTest, GivesNullForWhatCannotBeStarted) {
  const ScratchFolder folder;
  const std::string plain = folder.file("plain");
  std::ofstream(plain) << "not a program\n";
  for (const std::string& path : {folder.file("missing"), folder.path(), plain, plain + "/below"}) {
    EXPECT_EQ(makeProgramStarter()->start(path, {"-l"}), nullptr) << path;
  }
}

TEST(ProgramStarterTest, TerminateEndsTheProgram) {
  const NamedProcess process(own());
  EXPECT_TRUE(isThere(process.pid()));
  process.handle().terminate();
  EXPECT_TRUE(eventually([&] { return !isThere(process.pid()); }));
  process.handle().terminate();  // finds nothing to do
}

TEST(ProgramStarterTest, ADroppedHandleLeavesTheProgramRunning) {
  NamedProcess process(own());
  process.dropHandle();
  EXPECT_TRUE(isThere(process.pid()));
  sendSignal(process.pid(), SIGTERM);
  EXPECT_TRUE(eventually([&] { return !isThere(process.pid()); })) << "reaped all the same";
}

TEST(ProgramStarterTest, ServesSeveralThreadsAtOnce) {
  const auto starter = makeProgramStarter();
  std::atomic<int> started = 0;
  inThreads(4, [&](int /*number*/) {
    for (int run = 0; run < 10; ++run) {
      const auto program = starter->start(TEST_CHILDREN "/test-child", {"exit"});
      if (program == nullptr) continue;
      program->terminate();
      ++started;
    }
  });
  EXPECT_EQ(started, 40);
  EXPECT_TRUE(eventually(hasNoChildren));
}

}  // namespace
}  // namespace launcher
