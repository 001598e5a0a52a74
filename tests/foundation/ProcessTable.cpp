// The process table as macOS's kernel hands it out, filled from Linux's own.

#include "process/ProcessTable.h"

#include <sys/sysctl.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <vector>

namespace launcher {
std::unique_ptr<ProcessTable> makeLinuxProcessTable();
}

namespace {

kinfo_proc recordOf(const launcher::ProcessRecord& read) {
  kinfo_proc record{};
  record.kp_proc.p_pid = read.pid;
  std::copy(read.command.begin(), read.command.end(), std::begin(record.kp_proc.p_comm));
  return record;
}

/// Room for more records than there are: the kernel allows for processes that start meanwhile.
std::size_t room(const launcher::ProcessTable& table) {
  std::size_t length = 0;
  table.probeSize(length);
  return length / table.recordSize() + 64;
}

std::vector<kinfo_proc> processes() {
  const auto table = launcher::makeLinuxProcessTable();
  std::vector<std::byte> bytes(room(*table) * table->recordSize());
  std::size_t length = bytes.size();
  table->fetch(bytes.data(), length);
  std::vector<kinfo_proc> records;
  for (std::size_t at = 0; at < length; at += table->recordSize()) {
    records.push_back(recordOf(table->read(bytes.data() + at)));
  }
  return records;
}

}  // namespace

/// A buffer that is too small gets what fits into it, and the size is set to 0.
int sysctl(int* /*name*/, unsigned /*length*/, void* buffer, std::size_t* size,
           const void* /*newBuffer*/, std::size_t /*newSize*/) {
  const std::vector<kinfo_proc> records = processes();
  const std::size_t needed = records.size() * sizeof(kinfo_proc);
  if (buffer == nullptr) {
    *size = needed;
    return 0;
  }
  const std::size_t fitting = std::min(*size / sizeof(kinfo_proc), records.size());
  std::memcpy(buffer, records.data(), fitting * sizeof(kinfo_proc));
  *size = fitting == records.size() ? needed : 0;
  if (*size == needed) return 0;
  errno = ENOMEM;
  return -1;
}
