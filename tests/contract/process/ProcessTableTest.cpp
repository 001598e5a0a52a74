#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <list>
#include <string>
#include <vector>

#include "process/ProcessHelpers.h"
#include "process/ProcessTable.h"
#include "tests/InThreads.h"
#include "tests/contract/process/NamedProcess.h"

namespace launcher {
namespace {

constexpr std::byte untouched{0xEE};

const ProcessTable& table() {
  static const std::unique_ptr<ProcessTable> instance = makeProcessTable();
  return *instance;
}

ProcessId search(std::string_view name) { return ProcessHelpers::getRunningProcess(name, table()); }

/// The beginning of a name that no other process on the machine has.
std::string own() { return "zq" + std::to_string(getpid()); }

/// A name of exactly `bytes` bytes that no other process has.
std::string ownOf(std::size_t bytes) {
  std::string name = own();
  name.resize(bytes, '-');
  return name;
}

/// A fetch into a buffer of `capacity` bytes, with more memory behind it.
struct Fetch {
  explicit Fetch(std::size_t capacity)
      : buffer(capacity + table().recordSize(), untouched),
        length(capacity),
        result(table().fetch(buffer.data(), length)),
        error(result == -1 ? errno : 0) {}

  std::vector<ProcessId> pids() const {
    std::vector<ProcessId> found;
    for (std::size_t at = 0; at < length; at += table().recordSize()) {
      found.push_back(table().read(buffer.data() + at).pid);
    }
    return found;
  }

  /// Whether the first `bytes` bytes were filled with records of processes, and none behind them.
  bool fills(std::size_t bytes) const {
    for (std::size_t at = 0; at < bytes; at += table().recordSize()) {
      if (table().read(buffer.data() + at).pid < 0) return false;  // untouched memory reads so
    }
    return std::all_of(buffer.begin() + static_cast<std::ptrdiff_t>(bytes), buffer.end(),
                       [](std::byte byte) { return byte == untouched; });
  }

  std::vector<std::byte> buffer;
  std::size_t length;
  int result;
  int error;
};

std::size_t probedLength() {
  std::size_t length = 0;
  EXPECT_EQ(table().probeSize(length), 0);
  return length;
}

void expectSearch(const std::string& processName, const std::string& searched, bool isFound) {
  const NamedProcess process(processName);
  EXPECT_EQ(search(searched), isFound ? process.pid() : noProcess)
      << "process: '" << processName << "' searched: '" << searched << "'";
}

TEST(ProcessTableTest, FindsRealProcessesByName) {
  expectSearch(own(), own(), true);
  expectSearch(own(), own() + "link", true);
  expectSearch(own() + "s", own(), false);
  expectSearch("Z" + own().substr(1), own(), false);
  expectSearch(own(), "ZQ" + own().substr(2), false);
  expectSearch(own() + " x", own() + " xy", true);
  expectSearch(own() + "(\n)", own() + "(\n)", true);
  expectSearch(own() + "\u00e9", own() + "e\u0301", true);
}

TEST(ProcessTableTest, FindsALongNameByItsKeptBytes) {
  for (const std::size_t bytes : {14U, 15U, 16U, 17U, 18U, 40U}) {
    expectSearch(ownOf(bytes), ownOf(bytes), true);
  }
  expectSearch(ownOf(40), ownOf(20), true);
  expectSearch(ownOf(40), ownOf(14), false);
}

TEST(ProcessTableTest, LosesAProcessThatHasEnded) {
  NamedProcess process(own());
  EXPECT_EQ(search(own()), process.pid());
  process.stop();
  EXPECT_EQ(search(own()), noProcess);
}

TEST(ProcessTableTest, ListsEachProcessOnce) {
  const NamedProcess process(own());
  const Fetch fetch(2 * probedLength());
  EXPECT_EQ(fetch.result, 0);
  const std::vector<ProcessId> pids = fetch.pids();
  EXPECT_EQ(std::count(pids.begin(), pids.end(), process.pid()), 1);
  EXPECT_EQ(std::count(pids.begin(), pids.end(), getpid()), 1);
}

TEST(ProcessTableTest, ABufferOfTheProbedSizeHoldsTheTable) {
  const std::list<NamedProcess> processes = [] {
    std::list<NamedProcess> started;
    for (int i = 0; i < 20; ++i) started.emplace_back(own());
    return started;
  }();
  const auto holds = [] { return Fetch(probedLength()).result == 0; };
  EXPECT_TRUE(eventually(holds));  // others on the machine may start between probe and fetch
  EXPECT_EQ(probedLength() % table().recordSize(), 0U);
}

TEST(ProcessTableTest, TheProbedSizeGrowsWithTheTable) {
  constexpr std::size_t kMore = 20;
  const auto grows = [] {
    const std::size_t before = probedLength();
    std::list<NamedProcess> started;
    for (std::size_t i = 0; i < kMore; ++i) started.emplace_back(own());
    return probedLength() >= before + kMore * table().recordSize();
  };
  EXPECT_TRUE(eventually(grows));  // others on the machine may end at the same time
}

TEST(ProcessTableTest, TheProbeForgetsTheLengthItIsGiven) {
  std::size_t length = 1'000'000'000;
  EXPECT_EQ(table().probeSize(length), 0);
  EXPECT_LT(length, 1'000'000'000U);
}

TEST(ProcessTableTest, ALargeBufferIsFilledAsFarAsTheTableGoes) {
  const Fetch fetch(2 * probedLength());
  EXPECT_EQ(fetch.result, 0);
  EXPECT_GT(fetch.length, 0U);
  EXPECT_EQ(fetch.length % table().recordSize(), 0U);
  EXPECT_TRUE(fetch.fills(fetch.length));
}

TEST(ProcessTableTest, ATooSmallBufferIsFilledWithWholeRecords) {
  const std::size_t record = table().recordSize();
  const NamedProcess one(own() + "1");
  const NamedProcess two(own() + "2");
  for (const std::size_t capacity : {std::size_t{0}, record - 1, record, record + 1, 2 * record}) {
    const Fetch fetch(capacity);
    EXPECT_EQ(fetch.result, -1) << capacity;
    EXPECT_EQ(fetch.error, ENOMEM) << capacity;
    EXPECT_TRUE(fetch.fills(capacity / record * record)) << capacity;
  }
}

TEST(ProcessTableTest, ATableThatHasGrownIsTooLarge) {
  std::list<NamedProcess> processes;
  const auto growsBetween = [&] {
    const std::size_t before = Fetch(2 * probedLength()).length;
    for (int i = 0; i < 5; ++i) processes.emplace_back(own());
    const Fetch fetch(before);
    return fetch.result == -1 && fetch.error == ENOMEM && fetch.fills(before);
  };
  EXPECT_TRUE(eventually(growsBetween));  // others on the machine may end at the same time
}

TEST(ProcessTableTest, AProcessIsFoundFromSeveralThreadsWhileOthersComeAndGo) {
  NamedProcess process(own());
  const auto starter = makeProgramStarter();
  const auto finds = [&] { return search(own()) == process.pid(); };
  std::atomic<int> found = 0;
  // A single search may miss it: a process with a lower identifier that starts between probe and
  // fetch pushes it out of the snapshot.
  inThreads(4, [&](int /*number*/) {
    for (int run = 0; run < 50; ++run) {
      starter->start(TEST_CHILDREN "/test-child", {"exit"});
      found += eventually(finds) ? 1 : 0;
    }
  });
  EXPECT_EQ(found, 200);
  process.stop();
  EXPECT_TRUE(eventually(hasNoChildren));
}

}  // namespace
}  // namespace launcher
