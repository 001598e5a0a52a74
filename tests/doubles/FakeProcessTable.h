#pragma once

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <deque>
#include <memory>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

#include "process/ProcessTable.h"
#include "tests/doubles/EventLog.h"

namespace launcher {

using ProcessRecords = std::vector<ProcessRecord>;

/// A record as the table keeps it. A longer name is cut to 17 bytes and then ends without a NUL.
inline ProcessRecord processRecord(ProcessId pid, std::string_view name) {
  ProcessRecord record{pid, {}};
  name.copy(record.command.data(), record.command.size());
  return record;
}

/// A process table that holds what the test puts into it.
///
///     FakeProcessTable table;
///     table.processes = {processRecord(7, "vexlink")};       every search finds it,
///     table.upcoming = {{}, {processRecord(8, "vexlink")}};  but the first nothing, the second 8
///     table.probes = {{.result = -1, .error = EPERM}};       and the first size probe fails
class FakeProcessTable : public ProcessTable {
 public:
  /// An answer in the table's place. If it has no length, a size probe leaves the length as it is,
  /// a fetch sets it to what it filled in, and a fetch that fails sets it to 0, whatever it filled
  /// in, as the product's kernel does.
  struct Answer {
    int result = 0;
    int error = 0;                           ///< `errno` afterwards
    std::optional<std::size_t> length = {};  ///< in bytes, afterwards; absent: see below
    ProcessRecords records = {};             ///< filled in by a fetch
  };

  ProcessRecords processes;                     ///< what the table holds
  mutable std::deque<ProcessRecords> upcoming;  ///< what the first searches find, one entry each
  mutable std::deque<Answer> probes;            ///< what the first size probes answer
  mutable std::deque<Answer> fetches;           ///< what the first fetches answer
  std::set<ProcessId> ended;                    ///< listed, but not running any more

  std::shared_ptr<EventLog> log = std::make_shared<EventLog>();
  mutable int searches = 0;                         ///< size probes so far
  mutable std::vector<std::size_t> fetchedLengths;  ///< of the buffers so far, in bytes

  /// As large as a record of the product's platform.
  std::size_t recordSize() const override { return 648; }

  int probeSize(std::size_t& length) const override {
    ++searches;
    log->note("ask process table");
    if (!probes.empty()) {
      return play(probes, [&](const Answer& now) { length = now.length.value_or(length); });
    }
    length = shown().size() * recordSize();
    return 0;
  }

  int fetch(std::byte* buffer, std::size_t& length) const override {
    fetchedLengths.push_back(length);
    if (!fetches.empty()) {
      return play(fetches, [&](const Answer& now) {
        fill(now.records, buffer, length);
        if (now.result != 0) length = 0;
        length = now.length.value_or(length);
      });
    }
    fill(shown(), buffer, length);
    if (!upcoming.empty()) upcoming.pop_front();
    return 0;
  }

  ProcessRecord read(const std::byte* record) const override {
    ProcessRecord result{};
    std::memcpy(&result, record, sizeof result);
    return result;
  }

  bool hasEnded(ProcessId pid) const override { return ended.contains(pid); }

 private:
  const ProcessRecords& shown() const { return upcoming.empty() ? processes : upcoming.front(); }

  template <class Effect>
  static int play(std::deque<Answer>& answers, Effect effect) {
    const Answer now = answers.front();
    answers.pop_front();
    effect(now);
    errno = now.error;
    return now.result;
  }

  void fill(const ProcessRecords& records, std::byte* buffer, std::size_t& length) const {
    const std::size_t count = std::min(records.size(), length / recordSize());
    for (std::size_t i = 0; i < count; ++i) {
      std::memcpy(buffer + i * recordSize(), &records[i], sizeof records[i]);
    }
    length = count * recordSize();
  }
};

}  // namespace launcher
