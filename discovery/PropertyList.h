#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace launcher {

/// A value of a property list: a text, an array, a dictionary with text keys, or `Other`. This
/// program does not tell the rest apart: numbers, dates, data, truth values, dictionaries with
/// other keys.
class PropertyList {
 public:
  struct Other {
    friend bool operator==(const Other&, const Other&) = default;
  };
  using Array = std::vector<PropertyList>;
  /// Keys and values in no particular order. Of two equal keys the first counts.
  using Dictionary = std::vector<std::pair<std::string, PropertyList>>;

  PropertyList() = default;
  // Each kind converts to a value by itself. NOLINTBEGIN(google-explicit-constructor)
  PropertyList(std::string text) : value_(std::move(text)) {}
  PropertyList(const char* text) : value_(std::string(text)) {}
  PropertyList(Array array) : value_(std::move(array)) {}
  PropertyList(Dictionary dictionary) : value_(std::move(dictionary)) {}
  // NOLINTEND(google-explicit-constructor)

  /// The content if the value is of that kind, else null.
  const std::string* text() const { return std::get_if<std::string>(&value_); }
  const Array* array() const { return std::get_if<Array>(&value_); }
  const Dictionary* dictionary() const { return std::get_if<Dictionary>(&value_); }

  friend bool operator==(const PropertyList&, const PropertyList&) = default;

 private:
  std::variant<Other, std::string, Array, Dictionary> value_;
};

/// The value at a key, or null if the key is missing. Case counts.
///
///     valueAt({{"a", "1"}, {"a", "2"}}, "a")   -> "1"
const PropertyList* valueAt(const PropertyList::Dictionary& dictionary, std::string_view key);

/// The result of reading a property list: the value, or an error text.
struct PropertyListReading {
  std::optional<PropertyList> value;
  std::string error;  ///< empty if there is a value
};

/// Reads a property list: XML and binary on both platforms, on macOS also the old text form. Gives
/// an error for bytes that are no list, are cut off or refer to themselves. Any thread.
///
/// Lists beyond the limits give an error too, before they cost time or memory: more than 16 MB of
/// bytes, nesting deeper than 512, or values and keys of more than 32 MB. A value or key counts 64
/// bytes and its text, as often as the list refers to it. A listing of 10,000 attached images
/// passes.
///
/// An XML list may be in any encoding whose declared name the platform knows. If a dictionary has a
/// key twice, a binary list keeps the first value, XML the last.
///
///     readPropertyList("<array><string>a</string></array>")   -> an array of the text "a"
///     readPropertyList("")                                    -> an error
PropertyListReading readPropertyList(std::string_view bytes);

}  // namespace launcher
