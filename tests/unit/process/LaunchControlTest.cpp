#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include "process/LaunchControl.h"
#include "tests/InThreads.h"
#include "tests/doubles/FakeBundle.h"
#include "tests/doubles/FakeProcessTable.h"
#include "tests/doubles/FakeProgramStarter.h"
#include "tests/doubles/FakeSleeper.h"

namespace launcher {
namespace {

using Texts = std::vector<std::string>;

const ProcessRecords noViewer;
const ProcessRecords viewer = {processRecord(7, "vexlink")};

class LaunchControlTest : public testing::Test {
 protected:
  /// Launches with the table as it is and gives the handle that the launch made.
  FakeRunningProcess& launch() {
    control_.launchProc("host", "1.2.3.4");
    return *starter_.starts.back().process;
  }

  void expectSleeps(const std::vector<double>& expected) const {
    EXPECT_EQ(sleeper_.sleeps, expected);
    EXPECT_EQ(table_.searches, static_cast<int>(expected.size()) + 1);
  }

  FakeBundle bundle_;
  FakeProcessTable table_;
  FakeProgramStarter starter_;
  FakeSleeper sleeper_;
  LaunchControl control_{{bundle_, table_, starter_, sleeper_}};
};

TEST_F(LaunchControlTest, BeginsWithoutViewer) {
  EXPECT_EQ(control_.runningAppPID(), -1);
  EXPECT_EQ(control_.runningProcess(), nullptr);
  EXPECT_EQ(LaunchControl::targetProc, "vexlink");
}

TEST_F(LaunchControlTest, StartsTheViewerWithHostAddressAndResources) {
  bundle_.resources = "/R";
  control_.launchProc("vorx.example.com", "192.0.2.7");
  ASSERT_EQ(starter_.starts.size(), 1U);
  EXPECT_EQ(starter_.starts[0].path, "/R/bin/vexlink");
  EXPECT_EQ(starter_.starts[0].arguments,
            (Texts{"-l", "vorx.example.com", "-i", "192.0.2.7", "-r", "/R"}));
}

TEST_F(LaunchControlTest, PassesBothTextsAsTheyCome) {
  bundle_.resources = "/R \u00e9";
  control_.launchProc("", "");
  control_.launchProc(" -i\n", "not an address");
  ASSERT_EQ(starter_.starts.size(), 2U);
  EXPECT_EQ(starter_.starts[0].path, "/R \u00e9/bin/vexlink");
  EXPECT_EQ(starter_.starts[0].arguments, (Texts{"-l", "", "-i", "", "-r", "/R \u00e9"}));
  EXPECT_EQ(starter_.starts[1].arguments,
            (Texts{"-l", " -i\n", "-i", "not an address", "-r", "/R \u00e9"}));
}

TEST_F(LaunchControlTest, WithoutResourceFolderNothingHappens) {
  FakeRunningProcess& earlier = launch();
  const auto handle = control_.runningProcess();
  bundle_.resources.reset();
  table_.processes = viewer;
  control_.launchProc("host", "1.2.3.4");
  EXPECT_EQ(starter_.starts.size(), 1U);
  EXPECT_EQ(earlier.terminations, 0);
  EXPECT_EQ(control_.runningProcess(), handle);
  expectSleeps({});
}

TEST_F(LaunchControlTest, WithoutRunningViewerTheStartIsImmediate) {
  launch();
  EXPECT_EQ(control_.runningProcess(), starter_.starts[0].process);
  expectSleeps({});
}

TEST_F(LaunchControlTest, AHandleOfAViewerThatIsGoneIsReplacedWithoutSignal) {
  launch();
  launch();
  EXPECT_EQ(starter_.starts[0].process->terminations, 0);
  EXPECT_EQ(control_.runningProcess(), starter_.starts[1].process);
}

TEST_F(LaunchControlTest, StopsTheEarlierViewerAndWaitsForIt) {
  FakeRunningProcess& earlier = launch();
  table_.searches = 0;
  table_.upcoming = {viewer, viewer, noViewer};
  FakeRunningProcess& later = launch();
  EXPECT_EQ(earlier.terminations, 1);
  EXPECT_EQ(later.terminations, 0);
  EXPECT_EQ(starter_.starts.size(), 2U);
  expectSleeps({1.0, 1.0});
}

TEST_F(LaunchControlTest, OneWaitIsEnoughForAViewerThatGoesAtOnce) {
  table_.upcoming = {viewer, noViewer};
  launch();
  expectSleeps({1.0});
}

TEST_F(LaunchControlTest, AViewerThatGoesDuringTheLastWaitMakesNoDifference) {
  table_.upcoming = {viewer, viewer, viewer, viewer, viewer, noViewer};
  launch();
  expectSleeps({1.0, 1.0, 1.0, 1.0, 1.0});
}

TEST_F(LaunchControlTest, AViewerThatStaysGetsACompanionAfterFiveWaits) {
  FakeRunningProcess& earlier = launch();
  table_.searches = 0;
  table_.processes = viewer;
  launch();
  EXPECT_EQ(earlier.terminations, 1);
  EXPECT_EQ(starter_.starts.size(), 2U);
  EXPECT_EQ(control_.runningProcess(), starter_.starts[1].process);
  expectSleeps({1.0, 1.0, 1.0, 1.0, 1.0});
}

TEST_F(LaunchControlTest, AViewerOfSomebodyElseIsWaitedForButNotStopped) {
  table_.processes = viewer;
  launch();
  EXPECT_EQ(starter_.starts[0].process->terminations, 0);
  expectSleeps({1.0, 1.0, 1.0, 1.0, 1.0});
}

TEST_F(LaunchControlTest, AnIdentifierOfZeroIsAViewerThatRuns) {
  table_.upcoming = {{processRecord(0, "vexlink")}, noViewer};
  launch();
  expectSleeps({1.0});
}

TEST_F(LaunchControlTest, StopsWaitsAndStartsInThisOrder) {
  launch();
  table_.log = sleeper_.log = starter_.log;
  starter_.log->clear();
  table_.upcoming = {viewer, viewer, noViewer};
  launch();
  EXPECT_EQ(starter_.log->events(),
            (Texts{"ask process table", "stop viewer", "sleep", "ask process table", "sleep",
                   "ask process table", "start viewer"}));
}

TEST_F(LaunchControlTest, AnyCommandNameThatThePrefixRuleAcceptsCountsAsViewer) {
  table_.upcoming = {{processRecord(7, "vex")}, noViewer};
  launch();
  expectSleeps({1.0});
}

TEST_F(LaunchControlTest, TheEarlierHandleIsHeldUntilTheNewViewerRuns) {
  launch();
  table_.upcoming = {viewer, noViewer};
  starter_.onStart = [&] { EXPECT_EQ(control_.runningProcess(), starter_.starts[0].process); };
  launch();
  EXPECT_EQ(control_.runningProcess(), starter_.starts[1].process);
}

TEST_F(LaunchControlTest, AReplacedHandleIsDropped) {
  launch();
  const std::weak_ptr<FakeRunningProcess> earlier = starter_.starts[0].process;
  starter_.starts[0].process.reset();
  launch();
  EXPECT_TRUE(earlier.expired());
}

TEST_F(LaunchControlTest, AViewerThatCannotBeStartedLeavesTheEarlierHandle) {
  launch();
  starter_.refuses = true;
  control_.launchProc("host", "1.2.3.4");
  EXPECT_EQ(starter_.starts.size(), 2U);
  EXPECT_EQ(starter_.starts[0].process->terminations, 0);
  EXPECT_EQ(control_.runningProcess(), starter_.starts[0].process);
}

TEST_F(LaunchControlTest, ALaunchDoesNotChangeTheIdentifierThatTheWindowSaw) {
  control_.setRunningAppPID(42);
  launch();
  control_.terminateProc();
  EXPECT_EQ(control_.runningAppPID(), 42);
}

TEST_F(LaunchControlTest, TerminateStopsTheLatestViewerOnceAndForgetsIt) {
  launch();
  launch();
  control_.terminateProc();
  EXPECT_EQ(control_.runningProcess(), nullptr);
  control_.terminateProc();
  EXPECT_EQ(starter_.starts[0].process->terminations, 0);
  EXPECT_EQ(starter_.starts[1].process->terminations, 1);
  EXPECT_TRUE(sleeper_.sleeps.empty());
}

TEST_F(LaunchControlTest, TerminateStopsTheViewerBeforeItForgetsIt) {
  FakeRunningProcess& started = launch();
  std::shared_ptr<RunningProcess> heldMeanwhile;
  started.onTerminate = [&] { heldMeanwhile = control_.runningProcess(); };
  control_.terminateProc();
  EXPECT_EQ(heldMeanwhile, starter_.starts[0].process);
  EXPECT_EQ(control_.runningProcess(), nullptr);
}

TEST_F(LaunchControlTest, TerminateWithoutViewerDoesNothing) {
  control_.terminateProc();
  EXPECT_EQ(control_.runningProcess(), nullptr);
  EXPECT_EQ(table_.searches, 0);
}

/// The doubles call every member from within, as another thread may at that moment. That deadlocks
/// if a lock is held while the launch waits, starts or stops.
TEST_F(LaunchControlTest, NoLockIsHeldWhileItWaitsStartsOrStops) {
  FakeRunningProcess& earlier = launch();
  int calls = 0;
  const auto askEverything = [&] {
    ++calls;
    EXPECT_EQ(control_.runningAppPID(), -1);
    control_.runningProcess();
  };
  earlier.onTerminate = askEverything;
  sleeper_.onSleep = askEverything;
  starter_.onStart = askEverything;
  table_.upcoming = {viewer, noViewer};
  FakeRunningProcess& later = launch();
  later.onTerminate = askEverything;
  control_.terminateProc();
  EXPECT_EQ(calls, 4);
}

/// Doubles that keep nothing, so that several threads may use them at once.
struct EmptyTable : FakeProcessTable {
  int probeSize(std::size_t& length) const override {
    length = 0;
    return 0;
  }
  int fetch(std::byte* /*buffer*/, std::size_t& /*length*/) const override { return 0; }
};

struct CountedProcess : RunningProcess {
  explicit CountedProcess(std::atomic<int>& counter) : terminations(counter) {}
  void terminate() override { ++terminations; }

  std::atomic<int>& terminations;
};

struct ForgetfulStarter : ProgramStarter {
  std::atomic<int> terminations = 0;

  std::shared_ptr<RunningProcess> start(const std::string& /*path*/, const Texts&) override {
    return std::make_shared<CountedProcess>(terminations);
  }
};

TEST(LaunchControlThreadsTest, EveryMemberMayBeCalledAtTheSameTime) {
  const FakeBundle bundle;
  const EmptyTable table;
  ForgetfulStarter starter;
  FakeSleeper sleeper;
  LaunchControl control({bundle, table, starter, sleeper});

  inThreads(4, [&](int number) {
    for (int run = 0; run < 200; ++run) {
      control.launchProc("host", "1.2.3.4");
      control.runningProcess();
      control.setRunningAppPID(control.runningAppPID() + number);
      control.terminateProc();
    }
  });
  EXPECT_EQ(control.runningProcess(), nullptr);
  EXPECT_GE(starter.terminations, 1);
  EXPECT_LE(starter.terminations, 800) << "a call stops one viewer at the most";
}

}  // namespace
}  // namespace launcher
