#pragma once

#include <cstdint>
#include <ctime>

namespace launcher {

/// Nanoseconds of the clock that every process on the machine shares.
inline std::int64_t monotonicNow() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return std::int64_t{now.tv_sec} * 1'000'000'000 + now.tv_nsec;
}

}  // namespace launcher
