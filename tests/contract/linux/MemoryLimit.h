#pragma once

#include <sys/resource.h>
#include <unistd.h>

#include <cstddef>
#include <fstream>

namespace launcher {

/// Whether this process's memory can be limited. It cannot under a sanitizer, which needs the
/// address space.
#if defined(__SANITIZE_ADDRESS__) || __has_feature(address_sanitizer) || \
    __has_feature(thread_sanitizer)
inline constexpr bool memoryCanBeLimited = false;
#else
inline constexpr bool memoryCanBeLimited = true;
#endif

inline std::size_t addressSpace() {
  std::size_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  return pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

/// Limits this process to 64 MB more memory than it has now.
inline void limitMemoryTo64MB() {
  rlimit limits{};
  limits.rlim_cur = limits.rlim_max = addressSpace() + (64U << 20U);
  setrlimit(RLIMIT_AS, &limits);
}

}  // namespace launcher
