#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

extern "C" {  // missing in the header before glibc 2.37
#include <sys/pidfd.h>
}

#include "base/linux/Descriptor.h"
#include "process/ProcessTable.h"

namespace launcher {
namespace {

// The table's records are this structure, byte by byte.
static_assert(std::is_trivially_copyable_v<ProcessRecord>);

constexpr const char* procFolder = "/proc";

std::optional<ProcessId> parseProcessId(std::string_view name) {
  ProcessId pid = 0;
  const auto [rest, error] = std::from_chars(name.begin(), name.end(), pid);
  const bool isWhole = error == std::errc() && rest == name.end();
  return isWhole ? std::optional(pid) : std::nullopt;
}

/// Whether the machine lacks resources to read the process. Any other error means that the process
/// has gone since it was listed, or is hidden from this user.
bool isWantOfResources(int error) { return error == EMFILE || error == ENFILE || error == ENOMEM; }

struct CloseFolder {
  void operator()(DIR* folder) const { closedir(folder); }
};

/// The next process in /proc. Absent at the end, with `errno` 0, and on a failure.
std::optional<ProcessId> nextProcess(DIR* proc) {
  errno = 0;
  while (const dirent* entry = readdir(proc)) {
    if (const auto pid = parseProcessId(entry->d_name)) return pid;
  }
  return std::nullopt;
}

/// Absent if the record cannot be read; `errno` says why.
std::optional<ProcessRecord> recordOf(ProcessId pid, DIR* proc) {
  const std::string path = std::to_string(pid) + "/comm";  // short enough to need no allocation
  const Descriptor file(openat(dirfd(proc), path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.isOpen()) return std::nullopt;

  ProcessRecord record{pid, {}};
  const ssize_t size = read(file.number(), record.command.data(), record.command.size());
  if (size <= 0) return std::nullopt;
  // The last byte is the line feed, or the first byte too many.
  record.command[static_cast<std::size_t>(size) - 1] = '\0';
  return record;
}

/// Fills the buffer as `fetch` does. Returns the error, or 0.
int fill(std::byte* buffer, std::size_t& length) {
  const std::size_t capacity = std::exchange(length, 0);
  const std::unique_ptr<DIR, CloseFolder> proc(opendir(procFolder));
  if (proc == nullptr) return errno;

  while (const auto pid = nextProcess(proc.get())) {
    if (capacity - length < sizeof(ProcessRecord)) return ENOMEM;
    if (const auto record = recordOf(*pid, proc.get())) {
      std::memcpy(buffer + length, &*record, sizeof *record);
      length += sizeof *record;
    } else if (isWantOfResources(errno)) {
      return errno;
    }
  }
  return errno;
}

class ProcTable : public ProcessTable {
 public:
  std::size_t recordSize() const override { return sizeof(ProcessRecord); }

  int probeSize(std::size_t& length) const override {
    // The folder has one link for each process, and a few more. Counting the entries instead would
    // cost a sixth of a search.
    struct stat proc = {};
    if (stat(procFolder, &proc) == -1) return -1;
    length = proc.st_nlink * sizeof(ProcessRecord);
    return 0;
  }

  int fetch(std::byte* buffer, std::size_t& length) const override {
    errno = fill(buffer, length);
    return errno == 0 ? 0 : -1;
  }

  ProcessRecord read(const std::byte* record) const override {
    ProcessRecord result{};
    std::memcpy(&result, record, sizeof result);
    return result;
  }

  bool hasEnded(ProcessId pid) const override {
    const Descriptor process(pidfd_open(pid, 0));
    if (!process.isOpen()) return errno == ESRCH;
    pollfd exit{process.number(), POLLIN, 0};
    return poll(&exit, 1, 0) == 1;
  }
};

}  // namespace

std::unique_ptr<ProcessTable> makeProcessTable() { return std::make_unique<ProcTable>(); }

}  // namespace launcher
