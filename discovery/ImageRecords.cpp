#include "discovery/ImageRecords.h"

#include <algorithm>
#include <string_view>

#include "base/SDLog.h"
#include "base/Unicode.h"

namespace launcher {
namespace {

void log(std::string_view message) { SDLog(message, "ViewController", "processDMGData(plist:)"); }

/// The text at a key, or null.
const std::string* textAt(const PropertyList::Dictionary& record, std::string_view key) {
  const PropertyList* value = valueAt(record, key);
  return value == nullptr ? nullptr : value->text();
}

/// The array at a key if it holds nothing but dictionaries, else null.
const PropertyList::Array* recordsAt(const PropertyList::Dictionary& record, std::string_view key) {
  const PropertyList* value = valueAt(record, key);
  const PropertyList::Array* records = value == nullptr ? nullptr : value->array();
  if (records == nullptr) return nullptr;
  const bool allDictionaries =
      std::all_of(records->begin(), records->end(),
                  [](const PropertyList& item) { return item.dictionary() != nullptr; });
  return allDictionaries ? records : nullptr;
}

/// The folder that holds the application.
std::string referencePath(const ApplicationBundle& bundle) {
  return Url::ofFile(bundle.path()).deletingLastPathComponent().filePath();
}

bool isMountedAt(const PropertyList::Dictionary& entity, const std::string& folder) {
  const std::string* mountPoint = textAt(entity, "mount-point");
  if (mountPoint == nullptr) return false;
  log(*mountPoint);
  return canonicallyEqual(*mountPoint, folder);
}

/// Asks once for each volume of the image that is mounted at the folder, until there is an answer.
std::optional<std::string> locationOf(const PropertyList::Dictionary& image,
                                      const std::string& folder, const OriginReader& origin) {
  const std::string* imagePath = textAt(image, "image-path");
  const PropertyList::Array* entities = recordsAt(image, "system-entities");
  if (imagePath == nullptr || entities == nullptr) return std::nullopt;

  for (const PropertyList& entity : *entities) {
    if (!isMountedAt(*entity.dictionary(), folder)) continue;
    if (auto location = origin(Url::ofFile(*imagePath))) return location;
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> processDMGData(const PropertyList::Dictionary& listing,
                                          const ApplicationBundle& bundle,
                                          const OriginReader& origin) {
  const std::string folder = referencePath(bundle);
  log(folder);

  const PropertyList::Array* images = recordsAt(listing, "images");
  if (images == nullptr) return std::nullopt;
  for (const PropertyList& image : *images) {
    if (auto location = locationOf(*image.dictionary(), folder, origin)) return location;
  }
  return std::nullopt;
}

}  // namespace launcher
