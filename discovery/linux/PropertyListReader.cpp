#include "discovery/PropertyListReader.h"

#include <string>
#include <utility>

#include "base/Unicode.h"
#include "discovery/BinaryListCheck.h"
#include "discovery/BinaryObjects.h"
#include "discovery/linux/XmlPropertyList.h"

namespace launcher {
namespace {

/// Reads a binary list that has passed `checkBinaryList`.
class BinaryReader {
 public:
  explicit BinaryReader(std::string_view bytes) : table_(bytes) {}

  PropertyList read() const { return readValue(table_.top()); }

 private:
  PropertyList readValue(std::uint64_t reference) const {
    const BinaryObject object = table_.object(reference);
    switch (object.kind) {
      case ObjectKind::ascii:
        return readText(object.content, 1);
      case ObjectKind::utf16:
        return readText(object.content, 2);
      case ObjectKind::array:
        return {readItems(object.items)};
      case ObjectKind::dictionary:
        return readDictionary(object.items);
      default:
        return {};
    }
  }

  /// A unit of one byte is a Latin-1 character, although the kind is called ASCII.
  static PropertyList readText(std::string_view bytes, std::size_t unitSize) {
    std::u16string units;
    for (std::size_t at = 0; at < bytes.size(); at += unitSize) {
      units += static_cast<char16_t>(bigEndian(bytes.substr(at, unitSize)));
    }
    return {utf8(units)};
  }

  PropertyList::Array readItems(const References& items) const {
    PropertyList::Array values;
    for (std::uint64_t index = 0; index < items.size(); ++index) {
      values.push_back(readValue(items[index]));
    }
    return values;
  }

  /// Takes a dictionary with other keys for no dictionary.
  PropertyList readDictionary(const References& items) const {
    PropertyList::Array values = readItems(items);
    const std::size_t count = values.size() / 2;
    PropertyList::Dictionary dictionary;
    for (std::size_t key = 0; key < count; ++key) {
      if (values[key].text() == nullptr) return {};
      dictionary.emplace_back(*values[key].text(), std::move(values[count + key]));
    }
    return {std::move(dictionary)};
  }

  ObjectTable table_;
};

}  // namespace

PropertyList readList(std::string_view bytes) {
  return isBinaryList(bytes) ? BinaryReader(bytes).read() : readXmlPropertyList(bytes);
}

}  // namespace launcher
