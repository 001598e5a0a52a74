// The application's delegate.

#import "app/mac/AppDelegate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>

#include <csignal>
#include <string>

#import "tests/window/mac/Messages.h"
#import "tests/window/mac/Stage.h"
#import "tests/window/mac/Windows.h"

namespace launcher {
namespace {

/// Starts a program that waits to be signalled. It does not inherit this program's blocked signals.
pid_t startSleeper() {
  std::string name = "sleep";
  std::string seconds = "600";
  char* const arguments[] = {name.data(), seconds.data(), nullptr};
  char* const environment[] = {nullptr};
  posix_spawnattr_t attributes;
  sigset_t none;
  sigemptyset(&none);
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setsigmask(&attributes, &none);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
  pid_t child = -1;
  posix_spawn(&child, "/bin/sleep", nullptr, &attributes, arguments, environment);
  posix_spawnattr_destroy(&attributes);
  return child;
}

class AppDelegateTest : public testing::Test {
 protected:
  void SetUp() override { clearStage(); }

  void quit() {
    [delegate_
        applicationWillTerminate:[NSNotification
                                     notificationWithName:NSApplicationWillTerminateNotification
                                                   object:NSApp]];
  }

  AppDelegate* delegate_ = [[[AppDelegate alloc] init] autorelease];
};

TEST_F(AppDelegateTest, ImplementsThreeOperationsOfTheProtocol) {
  EXPECT_THAT(messagesOf([AppDelegate class]),
              testing::UnorderedElementsAre(
                  "init", "applicationDidFinishLaunching:", "applicationWillTerminate:",
                  "applicationShouldTerminateAfterLastWindowClosed:"));
}

TEST_F(AppDelegateTest, TheLastWindowClosesTheApplication) {
  EXPECT_TRUE([delegate_ applicationShouldTerminateAfterLastWindowClosed:NSApp]);
}

TEST_F(AppDelegateTest, FinishingTheLaunchDoesNothing) {
  LauncherWindowOnScreen shown;
  LaunchControl::sharedInstance().launchProc("h", "1.2.3.4");
  const int searches = stage().processes.searches;
  [delegate_ applicationDidFinishLaunching:
                 [NSNotification notificationWithName:NSApplicationDidFinishLaunchingNotification
                                               object:NSApp]];
  finishWork(shown.controller());
  EXPECT_EQ(stage().starter.starts.size(), 1U);
  EXPECT_EQ(stage().starter.starts[0].process->terminations, 0);
  EXPECT_EQ(stage().processes.searches, searches);
  EXPECT_EQ(textOf([shown.controller() vorxLocation]), "");
  EXPECT_FALSE([[shown.controller() launchButton] isEnabled]);
}

TEST_F(AppDelegateTest, QuittingStopsTheViewer) {
  LaunchControl::sharedInstance().launchProc("h", "1.2.3.4");
  const auto viewer = stage().starter.starts.at(0).process;
  quit();
  EXPECT_EQ(viewer->terminations, 1);
  EXPECT_EQ(LaunchControl::sharedInstance().runningProcess(), nullptr);
}

TEST_F(AppDelegateTest, QuittingSignalsTheCompanion) {
  const pid_t companion = startSleeper();
  stage().processes.processes = {processRecord(companion, "vexwatch")};
  quit();
  int status = 0;
  ASSERT_EQ(waitpid(companion, &status, 0), companion);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGTERM);
}

}  // namespace
}  // namespace launcher
