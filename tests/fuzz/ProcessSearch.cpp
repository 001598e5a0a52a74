// The search finds the first process whose name is the beginning of the name that is sought.
#include <string>

#include "base/Unicode.h"
#include "process/ProcessHelpers.h"
#include "tests/doubles/FakeProcessTable.h"
#include "tests/fuzz/Fuzzing.h"

using namespace launcher;
using namespace launcher::fuzzing;

static ProcessRecords recordsOf(std::string_view names) {
  ProcessRecords records;
  for (ProcessId pid = 1; !names.empty() && pid < 100; ++pid) {
    const std::string_view name = names.substr(0, names.find('\n'));
    records.push_back(processRecord(pid, name));
    names.remove_prefix(std::min(name.size() + 1, names.size()));
  }
  return records;
}

static ProcessId slowSearch(std::string_view sought, const ProcessRecords& records) {
  for (const ProcessRecord& record : records) {
    if (!record.name().empty() && sought.starts_with(record.name())) return record.pid;
  }
  return noProcess;
}

FUZZ_TARGET(text) {
  FakeProcessTable table;
  table.processes = recordsOf(text);
  const ProcessId found = ProcessHelpers::getRunningProcess("vexlink", table);
  if (isAscii(text)) {
    require(found == slowSearch("vexlink", table.processes), "the search finds the first match");
  }
}
