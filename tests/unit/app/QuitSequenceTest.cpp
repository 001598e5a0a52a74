#include <gtest/gtest.h>

#include <csignal>
#include <memory>
#include <string>
#include <vector>

#include "app/QuitSequence.h"
#include "tests/doubles/FakeBundle.h"
#include "tests/doubles/FakeProcessTable.h"
#include "tests/doubles/FakeProgramStarter.h"
#include "tests/doubles/FakeSleeper.h"

namespace launcher {
namespace {

using Events = std::vector<std::string>;

class QuitSequenceTest : public testing::Test {
 protected:
  QuitSequenceTest() { table_.log = starter_.log = log_; }

  void launch() {
    control_.launchProc("host", "1.2.3.4");
    log_->clear();
  }

  Events quit() {
    quitSequence(control_, table_, [this](ProcessId process, int signal) {
      log_->note("signal " + std::to_string(signal) + " to " + std::to_string(process));
      return killResult_;
    });
    return log_->events();
  }

  std::shared_ptr<EventLog> log_ = std::make_shared<EventLog>();
  FakeBundle bundle_;
  FakeProcessTable table_;
  FakeProgramStarter starter_;
  FakeSleeper sleeper_;
  LaunchControl control_{{bundle_, table_, starter_, sleeper_}};
  int killResult_ = 0;
};

TEST_F(QuitSequenceTest, WithoutViewerAndCompanionNoSignalIsSent) {
  table_.processes = {processRecord(3, "sh")};
  EXPECT_EQ(quit(), Events{"ask process table"});
}

TEST_F(QuitSequenceTest, StopsTheViewerOfThisLaunchAndForgetsIt) {
  launch();
  EXPECT_EQ(quit(), (Events{"stop viewer", "ask process table"}));
  EXPECT_EQ(control_.runningProcess(), nullptr);
}

TEST_F(QuitSequenceTest, StopsTheViewerBeforeTheCompanion) {
  launch();
  table_.processes = {processRecord(9, "vexwatch")};
  EXPECT_EQ(quit(), (Events{"stop viewer", "ask process table", "signal 15 to 9"}));
}

TEST_F(QuitSequenceTest, OnlyTheFirstCompanionIsSignalled) {
  table_.processes = {processRecord(12, "vexwatch"), processRecord(11, "vexwatch")};
  EXPECT_EQ(quit(), (Events{"ask process table", "signal 15 to 12"}));
}

TEST_F(QuitSequenceTest, ACompanionIsMatchedAsTheProcessTableMatches) {
  table_.processes = {processRecord(5, "vexwatchdog"), processRecord(6, "vexw")};
  EXPECT_EQ(quit(), (Events{"ask process table", "signal 15 to 6"}));
}

TEST_F(QuitSequenceTest, AViewerOfSomebodyElseGoesOn) {
  table_.processes = {processRecord(4, "vexlink")};
  EXPECT_EQ(quit(), Events{"ask process table"});
}

TEST_F(QuitSequenceTest, EveryIdentifierMeansThatTheCompanionRuns) {
  table_.processes = {processRecord(0, "vexwatch")};
  EXPECT_EQ(quit(), (Events{"ask process table", "signal 15 to 0"}));
}

TEST_F(QuitSequenceTest, AFailedSignalIsIgnored) {
  table_.processes = {processRecord(9, "vexwatch")};
  killResult_ = -1;
  EXPECT_EQ(quit(), (Events{"ask process table", "signal 15 to 9"}));
}

TEST_F(QuitSequenceTest, AFailedProcessTableSendsNoSignal) {
  table_.processes = {processRecord(9, "vexwatch")};
  table_.probes = {{.result = -1, .error = EPERM}};
  EXPECT_EQ(quit(), Events{"ask process table"});
}

TEST_F(QuitSequenceTest, NothingIsAwaited) {
  launch();
  table_.processes = {processRecord(8, "vexlink"), processRecord(9, "vexwatch")};
  quit();
  EXPECT_EQ(sleeper_.sleeps, std::vector<double>{});
}

}  // namespace
}  // namespace launcher
