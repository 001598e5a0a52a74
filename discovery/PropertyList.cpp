#include "discovery/PropertyList.h"

#include <algorithm>

namespace launcher {

const PropertyList* valueAt(const PropertyList::Dictionary& dictionary, std::string_view key) {
  const auto found = std::find_if(dictionary.rbegin(), dictionary.rend(),
                                  [key](const auto& entry) { return entry.first == key; });
  return found == dictionary.rend() ? nullptr : &found->second;
}

}  // namespace launcher
