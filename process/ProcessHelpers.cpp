#include "process/ProcessHelpers.h"

#include <cerrno>
#include <exception>

#include "base/FatalError.h"
#include "base/Unicode.h"

namespace launcher {
namespace {

/// Sets `length` to the size of the table. Returns the error, or 0.
int probeError(const ProcessTable& table, std::size_t& length) {
  const int result = table.probeSize(length);
  return result == -1 ? errno : result;
}

bool isMatch(std::string_view name, const ProcessRecord& process) {
  const std::string_view command = process.name();
  return !command.empty() && hasCanonicalPrefix(name, command);
}

}  // namespace

ProcessId ProcessHelpers::getRunningProcess(std::string_view name, const ProcessTable& table) {
  const std::optional<Snapshot> list = GetBSDProcessList(table);
  if (!list) return noProcess;

  for (std::size_t at = 0; at < list->size(); at += table.recordSize()) {
    const ProcessRecord process = table.read(list->data() + at);
    if (isMatch(name, process) && !table.hasEnded(process.pid)) return process.pid;
  }
  return noProcess;
}

std::optional<ProcessHelpers::Snapshot> ProcessHelpers::GetBSDProcessList(
    const ProcessTable& table) try {
  std::optional<Snapshot> list;
  while (true) {
    std::size_t length = 0;
    if (probeError(table, length) != 0) return list;

    const std::size_t count = length / table.recordSize();
    list.emplace(count * table.recordSize());

    // A table that has outgrown the array gives -1 and ENOMEM: search the part that fits. Only a
    // result of ENOMEM itself asks for another pass.
    switch (table.fetch(list->data(), length)) {
      case 0:
        return list;
      case -1:
        if (errno != 0) return list;
        break;
      case ENOMEM:
        break;
      default:
        fatalError("", "ProcessHelpers", 43);
    }
  }
} catch (const std::exception&) {
  return std::nullopt;
}

}  // namespace launcher
