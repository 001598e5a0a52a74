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
  /// Keys and values in no particular order. Of two equal keys the first counts.
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
///     valueAt({{"a", "1"}, {"a", "2"}}, "a")   -> "1"
const PropertyList* valueAt(const PropertyList::Dictionary& dictionary, std::string_view key);

/// What reading a property list gave: the value, or what was wrong with the bytes.
struct PropertyListReading {
  std::optional<PropertyList> value;
  std::string error;  ///< empty where there is a value
};

/// Reads a property list of any form that the platform knows: XML and binary on both platforms, on
/// macOS also the old text form. Bytes that are none, are cut off or refer to themselves give an
/// error. Any thread.
///
/// So does what goes too far, before time or memory is spent on it: more than 16 MB of bytes,
/// values nested more than 512 deep, or values and keys of more than 32 MB together, at 64 bytes
/// each and their texts, counted as often as the list refers to them. A listing of 10,000 attached
/// images passes.
///
/// A list in XML may be in any encoding that the platform knows by the name which the list
/// declares. Where a key comes twice in a dictionary, the first value counts in a binary list, the
/// last in XML.
///
///     readPropertyList("<array><string>a</string></array>")   -> an array of the text "a"
///     readPropertyList("")                                    -> an error
PropertyListReading readPropertyList(std::string_view bytes);

}  // namespace launcher
