#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "base/Unicode.h"
#include "process/LaunchControl.h"
#include "tests/contract/Eventually.h"
#include "tests/contract/ScratchFolder.h"
#include "tests/contract/process/NamedProcess.h"
#include "tests/doubles/FakeBundle.h"
#include "tests/doubles/FakeSleeper.h"

namespace launcher {
namespace {

/// The whole launch with a real table, real programs and short waits. Other people's viewers on
/// this machine only make it wait longer.
class RealLaunchTest : public testing::Test {
 public:
  RealLaunchTest() {
    resources_ = folder_.file("Res \u00e9");
    bundle_.resources = resources_;
    std::filesystem::create_directories(resources_ + "/bin");
    std::filesystem::copy_file(TEST_CHILDREN "/recording-viewer", resources_ + "/bin/vexlink");
    sleeper_.onSleep = [] { std::this_thread::sleep_for(std::chrono::milliseconds(20)); };
  }
  ~RealLaunchTest() override {
    for (const ProcessId pid : viewers_) {
      sendSignal(pid, SIGKILL);
      eventually([&] { return !isThere(pid); });
    }
  }

 protected:
  /// Launches and returns the new viewer's identifier.
  ProcessId launch(const std::string& location = "host", const std::string& ip = "1.2.3.4") {
    control_.launchProc(location, ip);
    ProcessId started = noProcess;
    if (!eventually([&] { return (started = newViewer()) != noProcess; })) {
      throw std::runtime_error("no viewer");
    }
    viewers_.push_back(started);
    return started;
  }

  std::string recordOf(ProcessId viewer) const {
    return contentOf(resources_ + "/started-" + std::to_string(viewer));
  }

  ScratchFolder folder_;
  std::string resources_;
  FakeBundle bundle_;
  FakeSleeper sleeper_;
  std::unique_ptr<ProcessTable> table_ = makeProcessTable();
  std::unique_ptr<ProgramStarter> starter_ = makeProgramStarter();
  LaunchControl control_{{bundle_, *table_, *starter_, sleeper_}};

 private:
  /// A viewer that has left a record and is not known yet.
  ProcessId newViewer() const {
    for (const auto& entry : std::filesystem::directory_iterator(resources_)) {
      const std::string name = entry.path().filename();
      if (name.rfind("started-", 0) != 0) continue;
      const ProcessId pid = std::stoi(name.substr(8));
      if (std::find(viewers_.begin(), viewers_.end(), pid) == viewers_.end()) return pid;
    }
    return noProcess;
  }

  std::vector<ProcessId> viewers_;
};

TEST_F(RealLaunchTest, TheViewerGetsHostAddressAndResources) {
  const ProcessId viewer = launch("vorx.example.com", "");
  EXPECT_PRED2(canonicallyEqual, recordOf(viewer),  // macOS passes letters on decomposed
               resources_ + "/bin/vexlink\n-l\nvorx.example.com\n-i\n\n-r\n" + resources_ + "\n");
  EXPECT_TRUE(isThere(viewer));
}

TEST_F(RealLaunchTest, ASecondLaunchReplacesTheViewer) {
  const ProcessId first = launch();
  sleeper_.sleeps.clear();
  const ProcessId second = launch();
  EXPECT_TRUE(eventually([&] { return !isThere(first); }));
  EXPECT_TRUE(isThere(second));
  EXPECT_GE(sleeper_.sleeps.size(), 1U);
}

TEST_F(RealLaunchTest, AStubbornViewerGetsACompanionAfterFiveWaits) {
  const std::ofstream stubborn(resources_ + "/stubborn");
  const ProcessId first = launch();
  sleeper_.sleeps.clear();
  const ProcessId second = launch();
  EXPECT_TRUE(isThere(first));
  EXPECT_TRUE(isThere(second));
  EXPECT_EQ(sleeper_.sleeps, std::vector<double>(5, 1.0));
}

TEST_F(RealLaunchTest, TerminateEndsTheLatestViewer) {
  const ProcessId viewer = launch();
  control_.terminateProc();
  EXPECT_TRUE(eventually([&] { return !isThere(viewer); }));
  EXPECT_EQ(control_.runningProcess(), nullptr);
}

TEST_F(RealLaunchTest, AViewerThatEndedByItselfIsGoneAndSignalledNoMore) {
  const ProcessId viewer = launch();
  sendSignal(viewer, SIGTERM);
  EXPECT_TRUE(eventually([&] { return !isThere(viewer); }));
  control_.terminateProc();
}

TEST_F(RealLaunchTest, AMissingViewerLeavesTheEarlierHandle) {
  const ProcessId viewer = launch();
  const auto handle = control_.runningProcess();
  sendSignal(viewer, SIGTERM);
  EXPECT_TRUE(eventually([&] { return !isThere(viewer); }));
  std::filesystem::remove(resources_ + "/bin/vexlink");
  control_.launchProc("host", "1.2.3.4");
  EXPECT_EQ(control_.runningProcess(), handle);
}

}  // namespace
}  // namespace launcher
