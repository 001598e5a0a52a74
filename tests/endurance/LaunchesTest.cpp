// A day's work many times over. Afterwards this process holds no more than before.

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "process/LaunchControl.h"
#include "process/ProcessHelpers.h"
#include "tests/contract/Eventually.h"
#include "tests/contract/ScratchFolder.h"
#include "tests/doubles/FakeBundle.h"
#include "tests/endurance/Possessions.h"

namespace launcher {
namespace {

constexpr int kRounds = 1'000;
constexpr int kFirstRounds = 100;  // until then caches and pools may fill
constexpr std::size_t kNoise = 16 << 10;

/// Rests until a condition holds, instead of for the seconds that it is asked for.
class ConditionSleeper : public Sleeper {
 public:
  explicit ConditionSleeper(std::function<bool()> condition) : condition_(std::move(condition)) {}
  void sleep(double /*seconds*/) override { EXPECT_TRUE(eventually(condition_)); }

 private:
  std::function<bool()> condition_;
};

/// Repeats a round, and compares what this process holds before and after.
template <class Round>
void expectNothingStays(Round round) {
  const Possessions before = Possessions::counted();
  std::size_t allocated = 0;
  for (int i = 0; i < kRounds; ++i) {
    round();
    if (i + 1 == kFirstRounds) allocated = allocatedBytes();
  }
  EXPECT_TRUE(eventually([&] { return Possessions::counted() == before; }))
      << "before: " << before << "\nafter: " << Possessions::counted();
  EXPECT_LE(allocatedBytes(), allocated + kNoise);
}

class LaunchesTest : public testing::Test {
 protected:
  LaunchesTest() {
    bundle_.resources = folder_.path();
    std::filesystem::create_directories(folder_.file("bin"));
    std::filesystem::copy_file(TEST_CHILDREN "/recording-viewer", folder_.file("bin/vexlink"));
  }

  /// Waits until everything that an earlier test started has ended.
  void SetUp() override {
    ASSERT_TRUE(eventually([] { return Possessions::counted().isQuiet(); }))
        << Possessions::counted();
  }
  void TearDown() override { control_.terminateProc(); }

  bool viewerRuns() const {
    return ProcessHelpers::getRunningProcess("vexlink", *table_) != noProcess;
  }

  ScratchFolder folder_;
  FakeBundle bundle_;
  std::unique_ptr<ProcessTable> table_ = makeProcessTable();
  std::unique_ptr<ProgramStarter> starter_ = makeProgramStarter();
  ConditionSleeper sleeper_{[this] { return !viewerRuns(); }};
  LaunchControl control_{{bundle_, *table_, *starter_, sleeper_}};
};

TEST_F(LaunchesTest, LaunchesAndQuits) {
  expectNothingStays([this] {
    control_.launchProc("server.example", "10.0.0.5");
    ASSERT_NE(control_.runningProcess(), nullptr);
    control_.terminateProc();
    ASSERT_TRUE(eventually([this] { return !viewerRuns(); }));
  });
}

TEST_F(LaunchesTest, Relaunches) {
  control_.launchProc("server.example", "10.0.0.5");
  ASSERT_TRUE(eventually([this] { return viewerRuns(); }));
  expectNothingStays([this] {
    const auto earlier = control_.runningProcess();
    control_.launchProc("server.example", "10.0.0.5");
    ASSERT_NE(control_.runningProcess(), earlier);
    ASSERT_TRUE(eventually([this] { return viewerRuns(); }));
  });
}

TEST_F(LaunchesTest, RefusedLaunches) {
  std::filesystem::remove(folder_.file("bin/vexlink"));
  expectNothingStays([this] { control_.launchProc("server.example", "10.0.0.5"); });
}

}  // namespace
}  // namespace launcher
