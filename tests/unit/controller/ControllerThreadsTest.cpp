// The controller with real threads. What should overlap does, and nothing is shared unguarded.

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "tests/doubles/ThreadedQueues.h"
#include "tests/unit/controller/ControllerFixture.h"

namespace launcher {
namespace {

/// A resolver that does not answer until it is let go.
class SlowResolver : public HostResolver {
 public:
  std::optional<std::vector<SocketAddress>> addresses(const std::string& host) const override {
    ++asked;
    letGo_.wait();
    if (host == "unknown.example") return std::nullopt;
    return {{ipv4("192.0.2.7")}};
  }

  void letGo() { promise_.set_value(); }
  void waitUntilAsked(int times) const {
    while (asked < times) std::this_thread::yield();
  }

  mutable std::atomic<int> asked = 0;

 private:
  std::promise<void> promise_;
  std::shared_future<void> letGo_ = promise_.get_future().share();
};

class NoProcesses : public ProcessTable {
 public:
  std::size_t recordSize() const override { return sizeof(ProcessRecord); }
  int probeSize(std::size_t& length) const override { return static_cast<int>(length = 0); }
  int fetch(std::byte*, std::size_t& length) const override { return static_cast<int>(length = 0); }
  ProcessRecord read(const std::byte*) const override { return {}; }
  bool hasEnded(ProcessId) const override { return false; }
};

class CountingStarter : public ProgramStarter {
 public:
  std::shared_ptr<RunningProcess> start(const std::string&,
                                        const std::vector<std::string>&) override {
    ++starts;
    return std::make_shared<FakeRunningProcess>();
  }

  std::atomic<int> starts = 0;
};

class NoSleep : public Sleeper {
 public:
  void sleep(double) override {}
};

/// A window and its controller, which live until the last item of work has let go of them.
struct Screen : FakeWindow, std::enable_shared_from_this<Screen> {
  Screen(WorkQueue& background, const ControllerServices& services)
      : controller(*this, background, services) {}
  std::shared_ptr<void> keepAlive() override { return shared_from_this(); }

  void type(const std::string& text) {
    location = text;
    controller.updateState();
  }

  LauncherController controller;
};

class ControllerThreadsTest : public testing::Test {
 protected:
  ControllerThreadsTest() { screen->location = "https://server.example"; }

  /// What the search finds.
  static constexpr const char* found = "https://found.example/d/";

  FakeBundle bundle;
  SlowResolver resolver;
  WordLinkDetector links;
  OneOrigin origin = [] {
    OneOrigin attribute;
    attribute.list = "<array><string>https://found.example/d/f.dmg</string></array>";
    return attribute;
  }();
  NoProcesses processes;
  FakeTranslations translations;
  ListingToolMaker listingTool = [] {
    return std::make_shared<PromptListingTool>(
        "<dict><key>images</key><array><dict><key>image-path</key><string>/a.dmg</string>"
        "<key>system-entities</key><array><dict><key>mount-point</key>"
        "<string>/Volumes/Vorx</string></dict></array></dict></array></dict>");
  };
  NoSleep sleeper;
  CountingStarter starter;
  LaunchControl launchControl{{bundle, processes, starter, sleeper}};
  WaitingQueue mainQueue;
  ThreadPerItem background;
  std::shared_ptr<Screen> screen =
      std::make_shared<Screen>(background, ControllerServices{.bundle = bundle,
                                                              .resolver = resolver,
                                                              .links = links,
                                                              .origin = origin,
                                                              .processes = processes,
                                                              .translations = translations,
                                                              .listingTool = listingTool,
                                                              .sleeper = sleeper,
                                                              .launchControl = launchControl,
                                                              .mainQueue = mainQueue});
};

TEST_F(ControllerThreadsTest, TheWindowAnswersWhileTheResolverTakesItsTime) {
  screen->controller.launchButtonClick();
  resolver.waitUntilAsked(1);
  for (int i = 0; i < 100; ++i) screen->type("https://server.example/" + std::to_string(i));
  EXPECT_EQ(screen->info, "Press launch button to start remote control");
  EXPECT_EQ(starter.starts, 0);

  resolver.letGo();
  mainQueue.run(1);
  EXPECT_EQ(starter.starts, 1);
}

TEST_F(ControllerThreadsTest, ALocationIsFoundDuringTyping) {
  constexpr int searches = 50;
  for (int i = 0; i < searches; ++i) {
    screen->controller.searchDMGs();
    screen->type("typed" + std::to_string(i));
  }
  mainQueue.run(searches);
  EXPECT_EQ(screen->location, found);
}

TEST_F(ControllerThreadsTest, ALocationFoundDuringALaunchIsShownDuringIt) {
  screen->controller.launchButtonClick();
  resolver.waitUntilAsked(1);
  screen->controller.searchDMGs();
  mainQueue.run(1);
  EXPECT_EQ(screen->location, found);
  EXPECT_FALSE(screen->locationEnabled);

  resolver.letGo();
  mainQueue.run(1);
  EXPECT_TRUE(screen->locationEnabled);
}

TEST_F(ControllerThreadsTest, ALocationFoundDuringTheAlertIsShownAfterIt) {
  screen->location = "https://unknown.example";
  screen->whileAlertIsUp = [&] {
    screen->controller.searchDMGs();
    mainQueue.waitForItem();
    EXPECT_EQ(screen->location, "https://unknown.example");
  };
  resolver.letGo();
  screen->controller.launchButtonClick();
  mainQueue.run(2);
  EXPECT_EQ(screen->alerts.size(), 1U);
  EXPECT_EQ(screen->location, found);
}

TEST_F(ControllerThreadsTest, FlowsRunSideBySide) {
  constexpr int flows = 8;
  for (int i = 0; i < flows; ++i) screen->controller.launchButtonClick();
  resolver.waitUntilAsked(flows);
  EXPECT_EQ(starter.starts, 0);

  resolver.letGo();
  mainQueue.run(flows);
  EXPECT_EQ(starter.starts, flows);
}

TEST_F(ControllerThreadsTest, QuitDuringALaunchStopsWhatHasStarted) {
  resolver.letGo();
  for (int i = 0; i < 20; ++i) {
    screen->controller.launchButtonClick();
    launchControl.terminateProc();
  }
  mainQueue.run(20);
  launchControl.terminateProc();
  EXPECT_EQ(launchControl.runningProcess(), nullptr);
}

TEST_F(ControllerThreadsTest, WorkOutlivesTheWindow) {
  const std::weak_ptr<Screen> watched = screen;
  screen->controller.launchButtonClick();
  screen->controller.searchDMGs();
  screen.reset();
  resolver.waitUntilAsked(1);
  EXPECT_FALSE(watched.expired());

  resolver.letGo();
  mainQueue.run(2);
  background.waitForAll();
  EXPECT_TRUE(watched.expired());
  EXPECT_EQ(starter.starts, 1);
}

}  // namespace
}  // namespace launcher
