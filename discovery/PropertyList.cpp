#include "discovery/PropertyList.h"

#include <algorithm>
#include <exception>

#include "discovery/BinaryListCheck.h"
#include "discovery/PropertyListLimits.h"
#include "discovery/PropertyListReader.h"

namespace launcher {

const PropertyList* valueAt(const PropertyList::Dictionary& dictionary, std::string_view key) {
  const auto found = std::find_if(dictionary.begin(), dictionary.end(),
                                  [key](const auto& entry) { return entry.first == key; });
  return found == dictionary.end() ? nullptr : &found->second;
}

PropertyListReading readPropertyList(std::string_view bytes) try {
  if (bytes.size() > kMostListBytes) throw UnreadableList("more than 16 MB");
  if (isBinaryList(bytes)) checkBinaryList(bytes);
  return {readList(bytes), {}};
} catch (const std::exception& error) {
  return {std::nullopt, error.what()};
}

}  // namespace launcher
