#include <dirent.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <iterator>
#include <string>

#include "process/ProcessHelpers.h"
#include "process/ProcessTable.h"
#include "tests/contract/process/NamedProcess.h"

namespace launcher {
namespace {

ProcessId search(std::string_view name) {
  return ProcessHelpers::getRunningProcess(name, *makeProcessTable());
}

/// The beginning of a name that no other process on the machine has.
std::string own() { return "zl" + std::to_string(getpid()); }

/// A child of this name that has ended and that nobody has waited for yet.
class Zombie {
 public:
  explicit Zombie(const std::string& name) : pid_(fork()) {
    if (pid_ == 0) {
      prctl(PR_SET_NAME, name.c_str());
      _exit(0);
    }
    waitid(P_PID, static_cast<id_t>(pid_), nullptr, WEXITED | WNOWAIT);
  }
  Zombie(const Zombie&) = delete;
  Zombie& operator=(const Zombie&) = delete;
  ~Zombie() { waitpid(pid_, nullptr, 0); }

  pid_t pid() const { return pid_; }

 private:
  pid_t pid_;
};

TEST(ProcTableTest, AZombieIsListedButNotFound) {
  const Zombie zombie(own());
  EXPECT_EQ(contentOf("/proc/" + std::to_string(zombie.pid()) + "/comm"), own() + "\n");
  EXPECT_TRUE(makeProcessTable()->hasEnded(zombie.pid()));
  EXPECT_EQ(search(own()), noProcess);
}

TEST(ProcTableTest, AZombieHidesNoRunningProcess) {
  const Zombie zombie(own());
  const NamedProcess process(own());
  EXPECT_EQ(search(own()), process.pid());
}

TEST(ProcTableTest, ARunningProcessHasNotEndedAndAMissingOneHas) {
  EXPECT_FALSE(makeProcessTable()->hasEnded(getpid()));
  EXPECT_FALSE(makeProcessTable()->hasEnded(1));
  pid_t gone = 0;
  {
    const Zombie zombie(own());
    gone = zombie.pid();
  }
  EXPECT_TRUE(makeProcessTable()->hasEnded(gone));
}

TEST(ProcTableTest, AProcessWithoutItsFirstThreadStillRuns) {
  const NamedProcess process(own(), "announce-without-first-thread");
  const std::string state = "/proc/" + std::to_string(process.pid()) + "/stat";
  ASSERT_TRUE(eventually([&] { return contentOf(state).find(") Z ") != std::string::npos; }));
  EXPECT_EQ(search(own()), process.pid());
}

TEST(ProcTableTest, ANameCutInsideACharacterDoesNotMatch) {
  const std::string fourteen = own() + std::string(14 - own().size(), '-');
  const NamedProcess process(fourteen + "\u00e9");
  EXPECT_EQ(search(fourteen + "\u00e9"), noProcess);
  EXPECT_EQ(search(fourteen + "\ufffd"), process.pid());
}

TEST(ProcTableTest, ASearchKeepsNoDescriptor) {
  const auto openDescriptors = [] {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
  };
  const auto before = openDescriptors();
  const Zombie zombie(own());
  for (int i = 0; i < 10; ++i) search(own());
  EXPECT_EQ(openDescriptors(), before);
}

/// Each test runs in a process of its own, which it may cripple.
class ProcTableDeathTest : public testing::Test {
 protected:
  ProcTableDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

  [[noreturn]] static void finish(bool passed) { std::_Exit(passed ? 0 : 1); }

  static bool fetchFails(int error) {
    std::array<std::byte, sizeof(ProcessRecord)> record{};
    std::size_t length = record.size();
    return makeProcessTable()->fetch(record.data(), length) == -1 && errno == error;
  }
};

TEST_F(ProcTableDeathTest, WithoutDescriptorsTheTableCannotBeFetched) {
  const auto run = [] {
    const rlimit none{0, 0};
    setrlimit(RLIMIT_NOFILE, &none);
    finish(fetchFails(EMFILE) && search(own()) == noProcess);
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

TEST_F(ProcTableDeathTest, WithOneDescriptorForTheListAloneTheTableCannotBeFetched) {
  const auto run = [] {
    const int next = dup(STDERR_FILENO);
    close(next);
    const rlimit one{static_cast<rlim_t>(next) + 1, static_cast<rlim_t>(next) + 1};
    setrlimit(RLIMIT_NOFILE, &one);
    finish(fetchFails(EMFILE) && search(own()) == noProcess);
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

TEST_F(ProcTableDeathTest, WithoutProcTheTableCannotBeRead) {
  if (geteuid() != 0) GTEST_SKIP() << "needs root, to hide /proc";
  const auto run = [] {
    const ScratchFolder empty;
    bool passed = chroot(empty.path().c_str()) == 0;
    std::size_t length = 0;
    passed = passed && makeProcessTable()->probeSize(length) == -1 && errno == ENOENT;
    finish(passed && fetchFails(ENOENT) && search(own()) == noProcess);
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace launcher
