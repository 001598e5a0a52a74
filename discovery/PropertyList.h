#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace launcher {

/// A value of a property list, as far as this program reads one: a text, an array, a dictionary
/// with text keys, or `Other` for all the rest (numbers, dates, data, truth values, dictionaries
/// with other keys).
class PropertyList {
 public:
  struct Other {
    friend bool operator==(const Other&, const Other&) = default;
  };
  using Array = std::vector<PropertyList>;
  using Dictionary = std::map<std::string, PropertyList, std::less<>>;

  PropertyList() = default;
  PropertyList(std::string text) : value_(std::move(text)) {}
  PropertyList(const char* text) : value_(std::string(text)) {}
  PropertyList(Array array) : value_(std::move(array)) {}
  PropertyList(Dictionary dictionary) : value_(std::move(dictionary)) {}

  /// The value if it is of that kind, else null.
  const std::string* text() const { return std::get_if<std::string>(&value_); }
  const Array* array() const { return std::get_if<Array>(&value_); }
  const Dictionary* dictionary() const { return std::get_if<Dictionary>(&value_); }

  friend bool operator==(const PropertyList&, const PropertyList&) = default;

 private:
  std::variant<Other, std::string, Array, Dictionary> value_;
};

/// The value at a key, or null where the key is missing. Keys are matched whole, case counts.
const PropertyList* valueAt(const PropertyList::Dictionary& dictionary, std::string_view key);

/// What reading a property list gave: the value, or what was wrong with the bytes.
struct PropertyListReading {
  std::optional<PropertyList> value;
  std::string error;  ///< empty where there is a value
};

/// Reads a property list of any form that the platform knows (XML, binary). Bytes that are none,
/// are cut off, refer to themselves, or would grow out of all proportion give an error. Any thread.
PropertyListReading readPropertyList(std::string_view bytes);

}  // namespace launcher
