#include "discovery/linux/attached-images/AttachedImageList.h"

#include <string_view>
#include <unordered_map>

namespace launcher {
namespace {

std::string pathOf(const BlockDevice& device) { return "/dev/" + device.name; }

/// The places where each whole device is mounted, by the device's path.
class MountPoints {
 public:
  MountPoints(const std::vector<LoopDevice>& loops, const std::vector<Mount>& mounts) {
    for (const LoopDevice& loop : loops) {
      for (const BlockDevice& device : loop.devices) paths_.emplace(device.number, pathOf(device));
    }
    for (const Mount& mount : reachableMounts(mounts)) {
      const auto device = deviceOf(mount);
      if (device && mount.root == "/") mountPoints_[*device].push_back(mount.mountPoint);
    }
  }

  std::vector<std::string> of(const std::string& device) const {
    const auto found = mountPoints_.find(device);
    return found == mountPoints_.end() ? std::vector<std::string>() : found->second;
  }

 private:
  /// btrfs has device numbers of its own and shows the device's path as the source. Elsewhere the
  /// source may be any name that was given when mounting.
  std::optional<std::string> deviceOf(const Mount& mount) const {
    if (const auto known = paths_.find(mount.number); known != paths_.end()) return known->second;
    return mount.type == "btrfs" ? std::optional(mount.source) : std::nullopt;
  }

  std::unordered_map<std::string, std::string> paths_;  ///< device paths by number
  std::unordered_map<std::string, std::vector<std::string>> mountPoints_;
};

void addEntities(AttachedImage& image, const std::string& device, const MountPoints& mountPoints) {
  const std::vector<std::string> places = mountPoints.of(device);
  if (places.empty()) image.entities.push_back({device, std::nullopt});
  for (const std::string& place : places) image.entities.push_back({device, place});
}

}  // namespace

std::vector<AttachedImage> attachedImages(const std::vector<LoopDevice>& loops,
                                          const std::vector<Mount>& mounts) {
  const MountPoints mountPoints(loops, mounts);
  std::vector<AttachedImage> images;
  for (const LoopDevice& loop : loops) {
    AttachedImage& image = images.emplace_back(AttachedImage{loop.imagePath, {}});
    for (const BlockDevice& device : loop.devices) {
      addEntities(image, pathOf(device), mountPoints);
    }
  }
  return images;
}

}  // namespace launcher
