#include "base/ApplicationBundle.h"

#include <filesystem>
#include <system_error>

namespace launcher {
namespace {

namespace fs = std::filesystem;

/// The program's folder. The kernel gives its path with all links resolved.
fs::path programFolder() {
  std::error_code failed;
  return fs::read_symlink("/proc/self/exe", failed).parent_path();
}

class ProgramBundle : public ApplicationBundle {
 public:
  std::string path() const override { return folder_; }

  std::optional<std::string> resourcePath() const override {
    std::error_code failed;
    const fs::path resources = folder_ / "Resources";
    if (!fs::is_directory(resources, failed)) return std::nullopt;
    return resources;
  }

 private:
  fs::path folder_ = programFolder();
};

}  // namespace

std::unique_ptr<ApplicationBundle> makeApplicationBundle() {
  return std::make_unique<ProgramBundle>();
}

}  // namespace launcher
