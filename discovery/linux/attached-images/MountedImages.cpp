#include "discovery/linux/attached-images/MountedImages.h"

#include <fcntl.h>
#include <libmount.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <new>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace launcher {
namespace {

using Path = std::filesystem::path;
using MountTable = std::unique_ptr<libmnt_table, decltype(&mnt_unref_table)>;
using MountIterator = std::unique_ptr<libmnt_iter, decltype(&mnt_free_iter)>;

MountTable readMountTable() {
  MountTable table(mnt_new_table(), mnt_unref_table);
  if (!table) throw std::bad_alloc();
  const int result = mnt_table_parse_file(table.get(), "/proc/self/mountinfo");
  if (result != 0) throw std::system_error(-result, std::generic_category(), "the mount table");
  return table;
}

/// btrfs has device numbers of its own and shows the device's path as the source. Elsewhere the
/// source may be any name that was given when mounting.
dev_t deviceOf(libmnt_fs* mount) {
  if (std::string_view(mnt_fs_get_fstype(mount)) != "btrfs") return mnt_fs_get_devno(mount);
  const char* source = mnt_fs_get_source(mount);
  struct stat status = {};
  return source != nullptr && stat(source, &status) == 0 ? status.st_rdev : 0;
}

/// The path that the kernel's file holds, without the line feed that the kernel adds.
std::optional<std::string> pathIn(const Path& file) {
  std::ifstream stream(file);
  std::string path;
  if (!std::getline(stream, path, '\0') || !path.ends_with('\n')) return std::nullopt;
  path.pop_back();
  return path;
}

/// The image behind a device. A partition's folder lies in that of the whole device.
std::optional<std::string> imageOf(const Path& device) {
  const auto path = pathIn(device / "loop/backing_file");
  return path ? path : pathIn(device / "../loop/backing_file");
}

/// Whether a path leads to the mount. If another one covers it, at its place or at a folder above,
/// the path leads there. Asks no server, since it might never answer.
bool isReachable(libmnt_fs* mount) {
  struct statx status = {};
  return statx(AT_FDCWD, mnt_fs_get_target(mount), AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC,
               STATX_MNT_ID, &status) == 0 &&
         std::cmp_equal(status.stx_mnt_id, mnt_fs_get_id(mount));
}

std::optional<MountedImage> imageAt(libmnt_fs* mount) {
  if (std::string_view(mnt_fs_get_root(mount)) != "/") return std::nullopt;
  const dev_t number = deviceOf(mount);
  const Path device =
      "/sys/dev/block/" + std::to_string(major(number)) + ":" + std::to_string(minor(number));
  std::error_code error;
  const Path link = std::filesystem::read_symlink(device, error);
  const auto image = error ? std::nullopt : imageOf(device);
  if (!image || !isReachable(mount)) return std::nullopt;
  return MountedImage{*image, "/dev/" + link.filename().string(), mnt_fs_get_target(mount)};
}

}  // namespace

std::vector<MountedImage> mountedImages() {
  const MountTable table = readMountTable();
  const MountIterator next(mnt_new_iter(MNT_ITER_FORWARD), mnt_free_iter);
  std::vector<MountedImage> images;
  libmnt_fs* mount = nullptr;
  while (mnt_table_next_fs(table.get(), next.get(), &mount) == 0) {
    if (auto image = imageAt(mount)) images.push_back(*std::move(image));
  }
  return images;
}

}  // namespace launcher
