#include <sys/sysctl.h>

#include <cstring>

#include "base/Text.h"
#include "process/ProcessTable.h"

namespace launcher {
namespace {

static_assert(sizeof(kinfo_proc) == 648, "the record of the 64-bit platform");

class KernelProcessTable : public ProcessTable {
 public:
  std::size_t recordSize() const override { return sizeof(kinfo_proc); }

  int query(std::byte* buffer, std::size_t& length) const override {
    int name[] = {CTL_KERN, KERN_PROC, KERN_PROC_ALL, 0};
    return sysctl(name, 4, buffer, &length, nullptr, 0);
  }

  ProcessRecord read(const std::byte* record) const override {
    kinfo_proc process;
    std::memcpy(&process, record, sizeof(process));
    const char* command = process.kp_proc.p_comm;
    return {process.kp_proc.p_pid,
            repairedUtf8({command, strnlen(command, sizeof(process.kp_proc.p_comm))})};
  }
};

}  // namespace

std::unique_ptr<ProcessTable> makeProcessTable() { return std::make_unique<KernelProcessTable>(); }

}  // namespace launcher
