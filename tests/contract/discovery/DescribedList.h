#pragma once

#include <set>
#include <string>
#include <string_view>

#include "discovery/PropertyList.h"

namespace launcher {

/// A value as a short text: 'text', [items], {key: value} in the order of the keys, and "other".
inline std::string described(const PropertyList& value) {
  if (const auto* text = value.text()) return "'" + *text + "'";
  std::string list;
  const auto add = [&list](const std::string& item) { list += (list.empty() ? "" : ", ") + item; };
  if (const auto* array = value.array()) {
    for (const PropertyList& item : *array) add(described(item));
    return "[" + list + "]";
  }
  if (const auto* dictionary = value.dictionary()) {
    std::set<std::string> keys;
    for (const auto& entry : *dictionary) keys.insert(entry.first);
    for (const std::string& key : keys) add(key + ": " + described(*valueAt(*dictionary, key)));
    return "{" + list + "}";
  }
  return "other";
}

/// What reading gives: a value as above, or "error". Reading must give exactly one of the two.
inline std::string describedReading(std::string_view bytes) {
  const PropertyListReading reading = readPropertyList(bytes);
  if (reading.value.has_value() != reading.error.empty()) return "a value and an error, or neither";
  return reading.value ? described(*reading.value) : "error";
}

}  // namespace launcher
