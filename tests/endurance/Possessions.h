#pragma once

#include <malloc.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <string>

namespace launcher {

/// Counts what this process holds and what it could leave behind on the machine.
struct Possessions {
  std::ptrdiff_t descriptors = 0;
  std::ptrdiff_t threads = 0;
  std::ptrdiff_t children = 0;  ///< zombies included
  std::ptrdiff_t temporaryFiles = 0;
  std::ptrdiff_t mounts = 0;

  static Possessions counted() {
    return {.descriptors = entries("/proc/self/fd"),
            .threads = entries("/proc/self/task"),
            .children = words("/proc/thread-self/children"),
            .temporaryFiles = entries(std::filesystem::temp_directory_path()),
            .mounts = lines("/proc/self/mountinfo")};
  }

  /// Whether nothing that an earlier test started is still running.
  bool isQuiet() const { return threads == 1 && children == 0; }

  friend bool operator==(const Possessions&, const Possessions&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Possessions& all) {
    return out << all.descriptors << " descriptors, " << all.threads << " threads, " << all.children
               << " children, " << all.temporaryFiles << " temporary files, " << all.mounts
               << " mounts";
  }

 private:
  static std::ptrdiff_t entries(const std::filesystem::path& folder) {
    return std::distance(std::filesystem::directory_iterator(folder), {});
  }

  static std::ptrdiff_t words(const char* path) {
    std::ifstream file(path);
    return std::distance(std::istream_iterator<std::string>(file), {});
  }

  static std::ptrdiff_t lines(const char* path) {
    std::ifstream file(path);
    std::ptrdiff_t count = 0;
    for (std::string line; std::getline(file, line);) ++count;
    return count;
  }
};

/// The bytes that this process has allocated and not given back.
inline std::size_t allocatedBytes() { return mallinfo2().uordblks; }

}  // namespace launcher
