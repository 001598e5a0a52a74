#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
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
  /// Keys and values in the list's order. Where a key comes twice, the later value counts.
  using Dictionary = std::vector<std::pair<std::string, PropertyList>>;

  PropertyList() = default;
  // Whatever is of one of the kinds is a value. NOLINTBEGIN(google-explicit-constructor)
  PropertyList(std::string text) : value_(std::move(text)) {}
  PropertyList(const char* text) : value_(std::string(text)) {}
  PropertyList(Array array) : value_(std::move(array)) {}
  PropertyList(Dictionary dictionary) : value_(std::move(dictionary)) {}
  // NOLINTEND(google-explicit-constructor)

  /// The value if it is of that kind, else null.
  const std::string* text() const { return std::get_if<std::string>(&value_); }
  const Array* array() const { return std::get_if<Array>(&value_); }
  const Dictionary* dictionary() const { return std::get_if<Dictionary>(&value_); }

  friend bool operator==(const PropertyList&, const PropertyList&) = default;

 private:
  std::variant<Other, std::string, Array, Dictionary> value_;
};

/// The value at a key, or null where the key is missing. Keys are matched whole, case counts.
///
///     valueAt({{"a", "1"}, {"a", "2"}}, "a")   -> "2"
const PropertyList* valueAt(const PropertyList::Dictionary& dictionary, std::string_view key);

/// What reading a property list gave: the value, or what was wrong with the bytes.
struct PropertyListReading {
  std::optional<PropertyList> value;
  std::string error;  ///< empty where there is a value
};

/// Reads a property list of any form that the platform knows: XML and binary on both platforms, on
/// macOS also the old text form. Bytes that are none, are cut off, refer to themselves, or would
/// grow out of all proportion give an error. Any thread.
///
/// On Linux a list of more than 16 MB, of more values than a listing of 10,000 attached images has,
/// or nested more than 512 deep gives an error, too, as does anything that follows a list in XML.
///
///     readPropertyList("<array><string>a</string></array>")   -> an array of the text "a"
///     readPropertyList("")                                    -> an error
PropertyListReading readPropertyList(std::string_view bytes);

}  // namespace launcher
