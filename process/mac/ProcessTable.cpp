#include "process/ProcessTable.h"

#include <sys/sysctl.h>

#include <algorithm>
#include <iterator>

namespace launcher {
namespace {

static_assert(sizeof(kinfo_proc) == 648, "the record of the 64-bit platform");

int askKernel(void* buffer, std::size_t& length) {
  std::array<int, 4> name = {CTL_KERN, KERN_PROC, KERN_PROC_ALL, 0};
  return sysctl(name.data(), name.size(), buffer, &length, nullptr, 0);
}

class KernelProcessTable : public ProcessTable {
 public:
  std::size_t recordSize() const override { return sizeof(kinfo_proc); }

  int probeSize(std::size_t& length) const override { return askKernel(nullptr, length); }

  int fetch(std::byte* buffer, std::size_t& length) const override {
    return askKernel(buffer, length);
  }

  ProcessRecord read(const std::byte* record) const override {
    kinfo_proc process{};
    std::memcpy(&process, record, sizeof(process));
    ProcessRecord read{process.kp_proc.p_pid, {}};
    std::copy(std::begin(process.kp_proc.p_comm), std::end(process.kp_proc.p_comm),
              read.command.begin());
    return read;
  }
};

}  // namespace

std::unique_ptr<ProcessTable> makeProcessTable() { return std::make_unique<KernelProcessTable>(); }

}  // namespace launcher
