#include <gtest/gtest.h>

#include <cerrno>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "process/ProcessHelpers.h"
#include "tests/doubles/FakeProcessTable.h"

namespace launcher {
namespace {

using Answer = FakeProcessTable::Answer;

constexpr std::size_t recordBytes = 648;

ProcessRecord process(ProcessId pid, std::string_view name) { return processRecord(pid, name); }

std::string described(const FakeProcessTable& table) {
  std::string text = "processes:";
  for (const ProcessRecord& record : table.processes) {
    text += " " + std::to_string(record.pid) + " '" + std::string(record.name()) + "'";
  }
  return text;
}

void expectFound(std::string_view name, const FakeProcessTable& table, ProcessId expected) {
  EXPECT_EQ(ProcessHelpers::getRunningProcess(name, table), expected)
      << "searched: '" << name << "' " << described(table);
}

void expectFound(std::string_view name, const ProcessRecords& processes, ProcessId expected) {
  FakeProcessTable table;
  table.processes = processes;
  expectFound(name, table, expected);
}

TEST(ProcessHelpersTest, FindsWhatTheSearchedNameBeginsWith) {
  expectFound("vexlink", {process(7, "vexlink")}, 7);
  expectFound("vexlink", {process(7, "vex")}, 7);
  expectFound("vexlink", {process(7, "vexl")}, 7);
  expectFound("vexlink", {process(7, "v")}, 7);
  expectFound("vexlink", {process(7, "vexlinks")}, noProcess);
  expectFound("vexlink", {process(7, "link")}, noProcess);
  expectFound("vexlink", {process(7, "vexwatch")}, noProcess);
  expectFound("vexlink", {process(7, " vexlink")}, noProcess);
}

TEST(ProcessHelpersTest, CaseCounts) {
  expectFound("VEXLINK", {process(7, "vexlink")}, noProcess);
  expectFound("vexlink", {process(7, "Vexlink")}, noProcess);
}

TEST(ProcessHelpersTest, TheEmptyNameFindsNothing) {
  expectFound("", {process(7, "vexlink"), process(8, "")}, noProcess);
}

TEST(ProcessHelpersTest, EmptyCommandNamesAreSkipped) {
  expectFound("vexlink", {process(6, ""), process(7, "vexlink")}, 7);
  expectFound("vexlink", {process(6, ""), process(0, "")}, noProcess);
}

TEST(ProcessHelpersTest, TheFirstOfTwoMatchesIsFound) {
  expectFound("vexlink", {process(9, "other"), process(8, "vex"), process(7, "vexlink")}, 8);
  expectFound("vexlink", {process(9, "other"), process(7, "vexlink"), process(8, "vex")}, 7);
}

TEST(ProcessHelpersTest, IdentifiersComeAsTheyAre) {
  expectFound("vexlink", {process(0, "vexlink")}, 0);
  expectFound("vexlink", {process(2147483647, "vexlink")}, 2147483647);
}

TEST(ProcessHelpersTest, ALongNameMatchesItsTruncatedCommandName) {
  expectFound("sixteen-bytes-kept-of-this", {process(7, "sixteen-bytes-ke")}, 7);
  expectFound("sixteen-bytes-kept-of-this", {process(7, "sixteen-bytes-kx")}, noProcess);
}

TEST(ProcessHelpersTest, ACommandNameWithoutNulEndsWithItsField) {
  expectFound("seventeen-bytes-k-of-this", {process(7, "seventeen-bytes-k and more")}, 7);
}

TEST(ProcessHelpersTest, ACommandNameEndsAtItsFirstNul) {
  expectFound("vexlink", {process(7, std::string_view("vex\0rest", 8))}, 7);
  expectFound("vexlink", {process(7, std::string_view("\0vexlink", 8))}, noProcess);
}

TEST(ProcessHelpersTest, CanonicallyEquivalentNamesMatch) {
  expectFound("caf\u00e9-viewer", {process(7, "cafe\u0301")}, 7);
  expectFound("cafe\u0301-viewer", {process(7, "caf\u00e9")}, 7);
  expectFound("caf\u00e9", {process(7, "CAF\u00c9")}, noProcess);
  expectFound("caf\u00e9", {process(7, "vexlink"), process(8, "caf")}, 8);
}

TEST(ProcessHelpersTest, IllFormedBytesCountAsReplacementCharacters) {
  expectFound("ab\ufffdcd", {process(7, "ab\xff")}, 7);
  expectFound("abcd", {process(7, "ab\xff")}, noProcess);
  expectFound("abcd", {process(7, "\xc3"), process(8, "ab")}, 8);
}

TEST(ProcessHelpersTest, AProcessThatHasEndedIsSkipped) {
  FakeProcessTable table;
  table.processes = {process(7, "vexlink"), process(8, "vexlink")};
  table.ended = {7};
  expectFound("vexlink", table, 8);
  table.ended = {7, 8};
  expectFound("vexlink", table, noProcess);
}

TEST(ProcessHelpersTest, EverySearchTakesAFreshSnapshot) {
  FakeProcessTable table;
  table.upcoming = {{process(7, "vexlink")}, {}, {process(8, "vexlink")}};
  expectFound("vexlink", table, 7);
  expectFound("vexlink", table, noProcess);
  expectFound("vexlink", table, 8);
  EXPECT_EQ(table.searches, 3);
}

/// The snapshot of the process table, seen through a search. The table holds one viewer, 7.
class SnapshotTest : public testing::Test {
 protected:
  SnapshotTest() { table_.processes = {process(7, "vexlink")}; }

  void expectFound(ProcessId expected) { launcher::expectFound("vexlink", table_, expected); }

  FakeProcessTable table_;
};

TEST_F(SnapshotTest, AFailedSizeProbeFindsNothing) {
  table_.probes = {{.result = -1, .error = EPERM, .length = recordBytes}};
  expectFound(noProcess);
  EXPECT_EQ(table_.fetchedLengths.size(), 0U);
}

TEST_F(SnapshotTest, ASizeProbeThatReturnsAnErrorFindsNothing) {
  for (const int result : {1, ENOMEM, -2}) {
    table_.probes = {{.result = result, .length = recordBytes}};
    expectFound(noProcess);
  }
  EXPECT_EQ(table_.fetchedLengths.size(), 0U);
}

TEST_F(SnapshotTest, ASizeProbeThatFailsWithoutAnErrorCounts) {
  table_.probes = {{.result = -1, .error = 0, .length = recordBytes}};
  expectFound(7);
}

TEST_F(SnapshotTest, ATableForWhichThereIsNoMemoryFindsNothing) {
  table_.probes = {{.length = std::numeric_limits<std::size_t>::max()}};
  expectFound(noProcess);
  EXPECT_EQ(table_.fetchedLengths.size(), 0U);
}

TEST_F(SnapshotTest, AnErrorLeftBehindByASizeProbeIsNotRead) {
  table_.probes = {{.result = 0, .error = EPERM, .length = recordBytes}};
  expectFound(7);
}

TEST_F(SnapshotTest, AnEmptyTableFindsNothing) {
  table_.processes = {};
  expectFound(noProcess);
}

TEST_F(SnapshotTest, AnEmptyTableIsFetchedAllTheSame) {
  table_.probes = {{.length = 0}};
  table_.fetches = {{.result = ENOMEM}};
  expectFound(7);
  EXPECT_EQ(table_.fetchedLengths, (std::vector<std::size_t>{0, recordBytes}));
}

TEST_F(SnapshotTest, TheProbedLengthGoesToTheFetch) {
  table_.probes = {{.length = 3 * recordBytes + 100}};
  expectFound(7);
  EXPECT_EQ(table_.fetchedLengths, (std::vector<std::size_t>{3 * recordBytes + 100}));
}

TEST_F(SnapshotTest, NoHeadroomIsAdded) {
  expectFound(7);
  EXPECT_EQ(table_.fetchedLengths, (std::vector<std::size_t>{recordBytes}));
}

TEST_F(SnapshotTest, APartOfARecordHoldsNone) {
  table_.probes = {{.length = recordBytes - 1}};
  expectFound(noProcess);
}

TEST_F(SnapshotTest, AShrunkenTableLeavesATailThatMatchesNothing) {
  table_.probes = {{.length = 5 * recordBytes}};
  expectFound(7);
  table_.probes = {{.length = 5 * recordBytes}};
  table_.processes = {process(6, "other")};
  expectFound(noProcess);
}

TEST_F(SnapshotTest, APartialTableIsSearched) {
  for (const int error : {ENOMEM, EPERM, EINTR}) {
    table_.probes = {{.length = 3 * recordBytes}};
    table_.fetches = {{.result = -1, .error = error, .records = {process(9, "vexlink")}}};
    expectFound(9);
  }
  EXPECT_EQ(table_.searches, 3) << "each took one pass";
}

TEST_F(SnapshotTest, APartialTableWithoutAMatchFindsNothing) {
  table_.fetches = {{.result = -1, .error = ENOMEM}};
  expectFound(noProcess);
}

TEST_F(SnapshotTest, AFailureWithoutAnErrorStartsAgain) {
  table_.fetches = {{.result = -1, .error = 0, .records = {process(9, "vexlink")}}};
  expectFound(7);
  EXPECT_EQ(table_.searches, 2);
}

TEST_F(SnapshotTest, ENOMEMReturnedDirectlyStartsAgain) {
  table_.fetches = {{.result = 12, .records = {process(9, "vexlink")}}, {.result = 12}};
  expectFound(7);
  EXPECT_EQ(table_.searches, 3);
}

TEST_F(SnapshotTest, AnErrorLeftBehindByASuccessfulFetchIsNotRead) {
  table_.fetches = {{.result = 0, .error = EPERM, .records = {process(9, "vexlink")}}};
  expectFound(9);
}

TEST_F(SnapshotTest, AnotherPassReplacesTheArray) {
  table_.processes = {process(6, "other"), process(7, "vexlink")};
  table_.probes = {{.length = recordBytes}};
  table_.fetches = {{.result = 12, .records = {process(9, "vexlink")}}};
  expectFound(7);
  EXPECT_EQ(table_.fetchedLengths, (std::vector<std::size_t>{recordBytes, 2 * recordBytes}));
}

TEST_F(SnapshotTest, AnotherPassStartsFromAnArrayOfZeros) {
  table_.probes = {{.length = 2 * recordBytes}, {.length = 2 * recordBytes}};
  table_.fetches = {{.result = 12, .records = {process(8, "vexlink"), process(9, "vexlink")}},
                    {.records = {process(6, "other")}}};
  expectFound(noProcess);
}

// The length that a fetch reports does not shorten the array.
TEST_F(SnapshotTest, RecordsBehindTheReturnedLengthAreSearched) {
  for (const int result : {0, -1}) {
    table_.probes = {{.length = 2 * recordBytes}};
    table_.fetches = {{.result = result,
                       .error = ENOMEM,
                       .length = recordBytes,
                       .records = {process(6, "other"), process(7, "vexlink")}}};
    expectFound(7);
  }
}

TEST_F(SnapshotTest, AFailingSizeProbeOfALaterPassKeepsTheEarlierArray) {
  table_.probes = {{.length = recordBytes}, {.result = -1, .error = EPERM}};
  table_.fetches = {{.result = 12, .records = {process(9, "vexlink")}}};
  expectFound(9);
}

TEST_F(SnapshotTest, EachPassProbesFromLengthZero) {
  const Answer leavesTheLength{.result = -1, .error = 0};
  const Answer leavesAnotherLength{.result = 12, .length = 3 * recordBytes};
  table_.probes = {leavesTheLength, {.length = recordBytes}, leavesTheLength};
  table_.fetches = {leavesAnotherLength, leavesAnotherLength};
  expectFound(noProcess);
  EXPECT_EQ(table_.fetchedLengths, (std::vector<std::size_t>{0, recordBytes, 0}));
}

using SnapshotDeathTest = SnapshotTest;

TEST_F(SnapshotDeathTest, AnyOtherResultEndsTheProgram) {
  for (const int result : {1, 11, 13, -2}) {
    table_.fetches = {{.result = result, .error = 0}};
    EXPECT_DEATH(ProcessHelpers::getRunningProcess("vexlink", table_),
                 "fatal error: file ProcessHelpers, line 43\n");
  }
}

}  // namespace
}  // namespace launcher
