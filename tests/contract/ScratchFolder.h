#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace launcher {

/// An empty folder that goes away with everything in it.
class ScratchFolder {
 public:
  ScratchFolder() : path_(testing::TempDir() + "launcher-test-XXXXXX") { mkdtemp(path_.data()); }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::string& path() const { return path_; }

  /// The path of an entry, which need not exist.
  std::string file(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

/// The whole content of a file; empty if there is no such file.
inline std::string contentOf(const std::string& path) {
  std::ostringstream content;
  content << std::ifstream(path).rdbuf();
  return content.str();
}

}  // namespace launcher
