// The listing of the kernel's loop devices and mounts is a property list that says what went in.
#include <algorithm>
#include <string>

#include "base/Unicode.h"
#include "discovery/PropertyList.h"
#include "discovery/linux/attached-images/AttachedImageList.h"
#include "discovery/linux/attached-images/ListingText.h"
#include "discovery/linux/attached-images/MountTable.h"
#include "tests/fuzz/Fuzzing.h"

using namespace launcher;
using namespace launcher::fuzzing;

/// An image at a path made of the input, and one for each device that a mount names.
static std::vector<LoopDevice> loopsOf(const std::vector<Mount>& mounts, std::string_view text) {
  std::vector<LoopDevice> loops{{std::string(text.substr(0, 200)), {{"loop0", "7:0"}}}};
  for (const Mount& mount : mounts) {
    if (loops.size() < 20) loops.push_back({mount.mountPoint, {{mount.source, mount.number}}});
  }
  return loops;
}

/// Whether the record holds the bytes at the key. Bytes that XML cannot hold may come back changed.
static bool isKept(const PropertyList& record, std::string_view key, const std::string& bytes) {
  const PropertyList* value = valueAt(*record.dictionary(), key);
  if (value == nullptr || value->text() == nullptr) return false;
  const bool holdable = isUtf8(bytes) && bytes.find_first_of("\x7f\xef") == std::string::npos &&
                        std::all_of(bytes.begin(), bytes.end(),
                                    [](char c) { return static_cast<unsigned char>(c) >= ' '; });
  return !holdable || *value->text() == bytes;
}

static void checkImage(const PropertyList& record, const AttachedImage& image) {
  require(isKept(record, "image-path", image.path), "an image keeps its path");
  const PropertyList* entities = valueAt(*record.dictionary(), "system-entities");
  require(entities != nullptr && entities->array() != nullptr, "an image has its volumes");
  require(entities->array()->size() == image.entities.size(), "an image has all its volumes");
  for (std::size_t i = 0; i < image.entities.size(); ++i) {
    const PropertyList& entity = (*entities->array())[i];
    const auto& mountPoint = image.entities[i].mountPoint;
    require(!mountPoint || isKept(entity, "mount-point", *mountPoint), "a volume keeps its place");
  }
}

FUZZ_TARGET(text) {
  const std::vector<Mount> mounts = parseMountTable(text);
  const std::vector<AttachedImage> images = attachedImages(loopsOf(mounts, text), mounts);
  use(tableOf(images));

  const auto listing = readPropertyList(propertyListOf(images)).value;
  if (text.size() > 10'000) return;  // many mounts of many devices may exceed the reader's limits
  require(listing && listing->dictionary() != nullptr, "the listing is a dictionary");
  const PropertyList* records = valueAt(*listing->dictionary(), "images");
  require(records != nullptr && records->array() != nullptr, "it holds the images");
  require(records->array()->size() == images.size(), "it holds all the images");
  for (std::size_t i = 0; i < images.size(); ++i) checkImage((*records->array())[i], images[i]);
}
