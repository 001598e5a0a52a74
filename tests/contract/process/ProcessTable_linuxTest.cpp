#include <dirent.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
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

/// A start of a name that no other process on the machine has.
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

/// In a process of its own, which may be crippled.
class ProcTableDeathTest : public testing::Test {
 protected:
  ProcTableDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

  /// Ends the process with 0 where the table cannot be read for this reason, and a search says so.
  [[noreturn]] static void expectUnreadable(int error) {
    const auto table = makeProcessTable();
    std::byte record[sizeof(ProcessRecord)] = {};
    std::size_t length = sizeof record;
    bool passed = table->probeSize(length) == -1 && errno == error;
    passed = passed && table->fetch(record, length) == -1 && errno == error;
    std::_Exit(passed && search(own()) == noProcess ? 0 : 1);
  }
};

TEST_F(ProcTableDeathTest, WithoutDescriptorsTheTableIsUnreadable) {
  const auto run = [] {
    const rlimit none{0, 0};
    setrlimit(RLIMIT_NOFILE, &none);
    expectUnreadable(EMFILE);
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

TEST_F(ProcTableDeathTest, WithoutProcTheTableIsUnreadable) {
  if (geteuid() != 0) GTEST_SKIP() << "needs root, to hide /proc";
  const auto run = [] {
    const ScratchFolder empty;
    if (chroot(empty.path().c_str()) == -1) std::_Exit(1);
    expectUnreadable(ENOENT);
  };
  EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace launcher
