#include <dirent.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/linux/Spawn.h"
#include "tests/InThreads.h"
#include "tests/contract/Eventually.h"
#include "tests/contract/Pipe.h"
#include "tests/contract/Processes.h"

namespace launcher {
namespace {

const std::string testChild = TEST_CHILDREN "/test-child";

/// What a run of the test child prints to both its streams.
std::string outputOf(std::vector<std::string> arguments) {
  Pipe pipe;
  const auto child =
      spawn({.path = testChild, .arguments = std::move(arguments), .output = pipe.writer()});
  if (child == nullptr) return "not started";
  std::string output = pipe.all();
  child->waitUntilExit();
  return output;
}

/// A child that does nothing until it is asked to stop.
struct WaitingChild {
  Pipe pipe;
  std::shared_ptr<SpawnedChild> handle =
      spawn({.path = testChild, .arguments = {"wait"}, .output = pipe.writer()});
  pid_t pid = std::stoi(pipe.line());
};

std::vector<std::string> entries(const char* folder) {
  std::vector<std::string> names;
  DIR* stream = opendir(folder);
  while (const dirent* entry = readdir(stream)) {
    if (entry->d_name[0] != '.') names.emplace_back(entry->d_name);
  }
  closedir(stream);
  return names;
}

std::vector<std::string> openDescriptors() { return entries("/proc/self/fd"); }
std::size_t threadCount() { return entries("/proc/self/task").size(); }

#if __has_feature(thread_sanitizer)
constexpr std::size_t lastingThreads = 2;  // the first one and the sanitizer's own
#else
constexpr std::size_t lastingThreads = 1;
#endif

/// Whether every other thread has ended, also those of earlier tests.
bool onlyLastingThreads() { return threadCount() == lastingThreads; }

/// Puts another descriptor in a standard one's place for a while.
class Redirection {
 public:
  Redirection(int standard, int replacement) : standard_(standard), kept_(dup(standard)) {
    dup2(replacement, standard_);
  }
  Redirection(const Redirection&) = delete;
  Redirection& operator=(const Redirection&) = delete;
  ~Redirection() {
    dup2(kept_, standard_);
    close(kept_);
  }

 private:
  int standard_;
  int kept_;
};

TEST(SpawnTest, PassesEveryArgumentAsItIs) {
  EXPECT_EQ(outputOf({"arguments", "-l", "", "a b", "$HOME \"x\" *", "b\xc3\xbc"}),
            "[-l]\n[]\n[a b]\n[$HOME \"x\" *]\n[b\xc3\xbc]\n");
}

TEST(SpawnTest, CutsAnArgumentAtItsNul) {
  EXPECT_EQ(outputOf({"arguments", std::string("ab\0cd", 5)}), "[ab]\n");
}

TEST(SpawnTest, PassesTheEnvironmentOn) {
  setenv("LAUNCHER_TEST_VARIABLE", "kept", 1);
  EXPECT_EQ(outputOf({"variable", "LAUNCHER_TEST_VARIABLE"}), "kept");
  unsetenv("LAUNCHER_TEST_VARIABLE");
}

TEST(SpawnTest, JoinsBothStreamsInOneDescriptor) {
  EXPECT_EQ(outputOf({"both"}), "out\nerr\nout again\n");
}

TEST(SpawnTest, LeavesBothStreamsInheritedWithoutADescriptor) {
  Pipe out;
  Pipe err;
  {
    const Redirection outRedirection(STDOUT_FILENO, out.writer());
    const Redirection errRedirection(STDERR_FILENO, err.writer());
    const auto child = spawn({.path = testChild, .arguments = {"both"}});
    ASSERT_NE(child, nullptr);
    child->waitUntilExit();
  }
  EXPECT_EQ(out.all(), "out\nout again\n");
  EXPECT_EQ(err.all(), "err\n");
}

TEST(SpawnTest, InheritsStandardInput) {
  Pipe input;
  ASSERT_EQ(write(input.writer(), "typed", 5), 5);
  input.closeWriter();
  const Redirection redirection(STDIN_FILENO, input.reader());
  EXPECT_EQ(outputOf({"repeat"}), "typed");
}

TEST(SpawnTest, LeaksNoDescriptorIntoTheChild) {
  std::array<int, 100> inheritable{};
  for (int& descriptor : inheritable) descriptor = open("/dev/null", O_RDONLY);
  EXPECT_EQ(outputOf({"descriptors"}), "0 1 2 ");
  for (const int descriptor : inheritable) close(descriptor);
}

TEST(SpawnTest, NoSignalIsBlockedOrIgnoredInTheChild) {
  sigset_t all;
  sigset_t before;
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, &before);
  const auto pipeHandler = std::signal(SIGPIPE, SIG_IGN);
  const auto termHandler = std::signal(SIGTERM, SIG_IGN);

  EXPECT_EQ(outputOf({"signals"}), "");

  std::signal(SIGTERM, termHandler);
  std::signal(SIGPIPE, pipeHandler);
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

TEST(SpawnTest, TerminateEndsTheChildAndLeavesNoZombie) {
  WaitingChild child;
  EXPECT_TRUE(isThere(child.pid));
  child.handle->terminate();
  child.handle->waitUntilExit();
  EXPECT_FALSE(isThere(child.pid));
  EXPECT_TRUE(hasNoChildren());
}

TEST(SpawnTest, ReportsTheExitOnceAfterTheReaping) {
  std::atomic<int> exits = 0;
  std::atomic<bool> reaped = false;
  auto held = std::make_shared<int>();
  const std::weak_ptr<int> handler = held;
  const auto child =
      spawn({.path = testChild, .arguments = {"exit"}, .onExit = [&, held = std::move(held)] {
               reaped = hasNoChildren();
               ++exits;
             }});
  ASSERT_NE(child, nullptr);
  child->waitUntilExit();
  EXPECT_TRUE(eventually([&] { return handler.expired(); })) << "the handler is dropped after use";
  EXPECT_EQ(exits, 1);
  EXPECT_TRUE(reaped);
}

TEST(SpawnTest, ReportsNoExitWhileTheChildRuns) {
  std::atomic<bool> exited = false;
  Pipe pipe;
  const auto child =
      spawn({.path = testChild, .arguments = {"wait"}, .output = pipe.writer(), .onExit = [&] {
               exited = true;
             }});
  ASSERT_NE(child, nullptr);
  pipe.line();
  EXPECT_FALSE(exited);
  child->terminate();
  EXPECT_TRUE(eventually([&] { return exited.load(); }));
}

TEST(SpawnTest, ADroppedChildRunsOnAndIsReaped) {
  WaitingChild child;
  child.handle.reset();
  EXPECT_TRUE(isThere(child.pid));
  EXPECT_FALSE(hasNoChildren());
  sendSignal(child.pid, SIGTERM);
  EXPECT_TRUE(eventually(hasNoChildren));
}

TEST(SpawnTest, AChildReapedBehindItsBackCountsAsEnded) {
  const auto before = std::signal(SIGCHLD, SIG_IGN);  // makes the kernel reap children
  const auto child = spawn({.path = testChild, .arguments = {"exit"}});
  ASSERT_NE(child, nullptr);
  child->waitUntilExit();
  child->terminate();
  std::signal(SIGCHLD, before);
}

TEST(SpawnTest, KeepsNoDescriptorAndNoThread) {
  const auto descriptors = openDescriptors();
  for (int i = 0; i < 20; ++i) {
    outputOf({"exit"});
    spawn({.path = "/missing"});
  }
  EXPECT_EQ(openDescriptors(), descriptors);
  EXPECT_TRUE(eventually(onlyLastingThreads));
}

TEST(SpawnTest, ServesSeveralThreadsAtOnce) {
  std::atomic<int> ended = 0;
  inThreads(4, [&](int /*number*/) {
    for (int run = 0; run < 5; ++run) {
      WaitingChild child;
      inThreads(2, [&](int /*number*/) {
        child.handle->terminate();
        child.handle->waitUntilExit();
      });
      ended += isThere(child.pid) ? 0 : 1;
    }
  });
  EXPECT_EQ(ended, 20);
  EXPECT_TRUE(hasNoChildren());
}

/// Whether a child of this process with the identifier `pid` has SIGTERM pending after `action`.
/// Absent if another process got the identifier first.
std::optional<bool> strangerIsSignalled(pid_t pid, const std::function<void()>& action) {
  sigset_t term;
  sigset_t before;
  sigemptyset(&term);
  sigaddset(&term, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &term, &before);
  Pipe goAhead;
  std::ofstream("/proc/sys/kernel/ns_last_pid") << pid - 1 << std::flush;
  const pid_t stranger = fork();
  if (stranger == 0) {
    goAhead.line();
    sigset_t pending;
    sigpending(&pending);
    _exit(sigismember(&pending, SIGTERM));
  }
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
  if (stranger == pid) action();
  static_cast<void>(write(goAhead.writer(), "\n", 1));
  int status = 0;
  waitpid(stranger, &status, 0);
  return stranger == pid ? std::optional(WEXITSTATUS(status) == 1) : std::nullopt;
}

/// The same, tried again while other processes get the identifier.
template <class MakeAction>
std::optional<bool> strangerIsSignalledAfterAll(MakeAction makeAction) {
  for (int attempt = 0; attempt < 50; ++attempt) {
    WaitingChild child;
    child.handle->terminate();
    child.handle->waitUntilExit();
    if (const auto signalled = strangerIsSignalled(child.pid, makeAction(child))) return signalled;
  }
  return std::nullopt;
}

TEST(SpawnTest, TerminateAfterTheExitSignalsNobody) {
  const auto wronged = strangerIsSignalledAfterAll(
      [](WaitingChild& child) { return [&] { child.handle->terminate(); }; });
  if (!wronged) GTEST_SKIP() << "this machine does not let a process identifier be chosen";
  EXPECT_FALSE(*wronged);

  const auto control = strangerIsSignalledAfterAll(
      [](WaitingChild& child) { return [&] { sendSignal(child.pid, SIGTERM); }; });
  EXPECT_TRUE(control.value_or(true));
}

/// Files that cannot be started.
class UnusableProgramTest : public testing::Test {
 public:
  UnusableProgramTest() {
    mkdtemp(folder_.data());
    write("plain", 0600, "#!/bin/sh\n");
    write("text", 0700, "neither program nor script\n");
    write("script", 0700, "#!/missing/interpreter\n");
  }
  ~UnusableProgramTest() override {
    for (const char* name : {"plain", "text", "script"}) std::remove(file(name).c_str());
    rmdir(folder_.c_str());
  }

 protected:
  std::string file(const std::string& name) const { return folder_ + "/" + name; }

  std::string folder_ = testing::TempDir() + "unusable-XXXXXX";

 private:
  void write(const std::string& name, mode_t mode, const char* text) const {
    std::ofstream(file(name)) << text;
    chmod(file(name).c_str(), mode);
  }
};

TEST_F(UnusableProgramTest, GivesNullAndReportsNoExit) {
  std::atomic<int> exits = 0;
  for (const std::string& path :
       {std::string(), std::string("test-child"), file("missing"), folder_, file("plain"),
        file("text"), file("script"), file("plain") + "/below", std::string(100000, 'x')}) {
    EXPECT_EQ(spawn({.path = path, .onExit = [&] { ++exits; }}), nullptr) << path.substr(0, 200);
  }
  EXPECT_TRUE(eventually(onlyLastingThreads));
  EXPECT_EQ(exits, 0);
  EXPECT_TRUE(hasNoChildren());
}

TEST(SpawnTest, LooksForNoProgramAlongPath) {
  const std::string path = std::getenv("PATH");
  setenv("PATH", TEST_CHILDREN, 1);
  EXPECT_EQ(spawn({.path = "test-child", .arguments = {"exit"}}), nullptr);
  setenv("PATH", path.c_str(), 1);
}

TEST(SpawnTest, TooLongArgumentsGiveNull) {
  EXPECT_EQ(spawn({.path = testChild, .arguments = {std::string(64 << 20, 'x')}}), nullptr);
}

/// Each test runs in a process of its own, where a limit harms nobody else.
class SpawnDeathTest : public testing::Test {
 protected:
  SpawnDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

  static void limit(decltype(RLIMIT_NOFILE) resource, rlim_t amount) {
    rlimit limits{};
    getrlimit(resource, &limits);
    limits.rlim_cur = std::min(amount, limits.rlim_max);
    setrlimit(resource, &limits);
  }

  /// No other run of these tests uses this user, not even one with process identifiers of its own.
  static uid_t userWithoutProcesses() {
    struct stat processes = {};
    stat("/proc/self/ns/pid", &processes);
    return static_cast<uid_t>(1'000'000 + processes.st_ino % 100'000 * 10'000 +
                              static_cast<ino_t>(getpid()) % 10'000);
  }

  static bool starts(const char* path = "/bin/true") {
    const auto child = spawn({.path = path});
    if (child != nullptr) child->waitUntilExit();
    return child != nullptr;
  }

  [[noreturn]] static void finish(bool passed) { std::_Exit(passed ? 0 : 1); }
};

TEST_F(SpawnDeathTest, WithoutProcessesGivesNullAndLeavesNothing) {
  if (geteuid() != 0) GTEST_SKIP() << "needs root, to become a user with no process";
  const auto run = [] {
    const uid_t user = userWithoutProcesses();
    bool passed = setresuid(user, user, user) == 0;
    limit(RLIMIT_NPROC, lastingThreads);  // this process alone
    passed = passed && !starts();
    limit(RLIMIT_NPROC, lastingThreads + 1);  // this process and a thread, but no child
    passed = passed && !starts();
    limit(RLIMIT_NPROC, lastingThreads + 2);
    passed = passed && eventually([] { return starts(); }) && hasNoChildren();
    finish(passed && eventually(onlyLastingThreads));
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

TEST_F(SpawnDeathTest, StartsWithoutAFreeDescriptor) {
  const auto run = [] {
    limit(RLIMIT_NOFILE, 32);
    Pipe pipe;
    while (dup(STDOUT_FILENO) != -1) {
    }
    const auto child =
        spawn({.path = testChild, .arguments = {"descriptors"}, .output = pipe.writer()});
    finish(child != nullptr && pipe.all() == "0 1 2 ");
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

#if defined(__SANITIZE_ADDRESS__) || __has_feature(address_sanitizer) || \
    __has_feature(thread_sanitizer)
constexpr bool memoryCanBeLimited = false;
#else
constexpr bool memoryCanBeLimited = true;
#endif

TEST_F(SpawnDeathTest, WithoutMemoryGivesNullAndLeavesNothing) {
  if (!memoryCanBeLimited) GTEST_SKIP() << "the sanitizer needs the address space";
  const auto run = [] {
    SpawnOptions large{.path = "/bin/true", .arguments = std::vector<std::string>(100'000)};
    limit(RLIMIT_AS, 0);  // every new mapping fails: a thread's stack, a large vector
    const bool passed = !starts() && spawn(std::move(large)) == nullptr;
    limit(RLIMIT_AS, RLIM_INFINITY);
    finish(passed && starts() && hasNoChildren());
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace launcher
