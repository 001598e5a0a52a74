// A listing leads to the path of one of its images. Only images with a volume at the application's
// folder are asked.
#include "base/Unicode.h"
#include "discovery/ImageRecords.h"
#include "discovery/PropertyList.h"
#include "tests/doubles/FakeBundle.h"
#include "tests/fuzz/Fuzzing.h"

using namespace launcher;
using namespace launcher::fuzzing;

static const std::string kFolder = "/Volumes/Vorx";

static const PropertyList::Array& arrayAt(const PropertyList& record, std::string_view key) {
  static const PropertyList::Array none;
  if (record.dictionary() == nullptr) return none;
  const PropertyList* value = valueAt(*record.dictionary(), key);
  return value == nullptr || value->array() == nullptr ? none : *value->array();
}

static std::string textAt(const PropertyList& record, std::string_view key) {
  if (record.dictionary() == nullptr) return {};
  const PropertyList* value = valueAt(*record.dictionary(), key);
  return value == nullptr || value->text() == nullptr ? std::string() : *value->text();
}

/// How many volumes in the listing lie at the folder, those of malformed images included.
static std::size_t volumesAtFolder(const PropertyList& listing) {
  std::size_t count = 0;
  for (const PropertyList& image : arrayAt(listing, "images")) {
    for (const PropertyList& entity : arrayAt(image, "system-entities")) {
      if (canonicallyEqual(textAt(entity, "mount-point"), kFolder)) ++count;
    }
  }
  return count;
}

FUZZ_TARGET(text) {
  const auto listing = readPropertyList(text).value;
  if (!listing || listing->dictionary() == nullptr) return;

  FakeBundle bundle;
  bundle.folder = kFolder + "/VorxLauncher.app";
  std::size_t asked = 0;
  const auto refuse = [&](const Url& file) {
    require(file.scheme() == "file", "an image is a file");
    ++asked;
    return std::optional<std::string>();
  };
  require(!processDMGData(*listing->dictionary(), bundle, refuse), "no origin gives no location");
  require(asked <= volumesAtFolder(*listing),
          "each volume at the folder is asked for once at most");

  const auto answer = [](const Url& file) { return std::optional(file.filePath()); };
  const auto location = processDMGData(*listing->dictionary(), bundle, answer);
  require(location.has_value() == (asked > 0), "the first one that is asked answers");
}
