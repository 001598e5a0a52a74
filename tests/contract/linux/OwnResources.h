#pragma once

#include <cstddef>
#include <filesystem>
#include <iterator>

namespace launcher {

/// What this process holds at the moment.
struct OwnResources {
  std::size_t descriptors = entries("/proc/self/fd");
  std::size_t threads = entries("/proc/self/task");

  /// Whether nothing was added since. Threads of an earlier test may have been ending back then.
  bool addNothingTo(const OwnResources& before) const {
    return descriptors <= before.descriptors && threads <= before.threads;
  }

 private:
  static std::size_t entries(const char* folder) {
    const std::filesystem::directory_iterator entries(folder);
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
  }
};

}  // namespace launcher
