#include "discovery/PropertyListReader.h"

#include <optional>
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
    BinaryObject object = table_.object(reference);
    switch (object.kind()) {
      case ObjectKind::ascii:
        return readText(object, 1);
      case ObjectKind::utf16:
        return readText(object, 2);
      case ObjectKind::array:
        return readArray(object);
      case ObjectKind::dictionary:
        return readDictionary(object);
      default:
        return {};
    }
  }

  /// A unit of one byte is a Latin-1 character, although the kind is called ASCII.
  static PropertyList readText(BinaryObject& object, std::size_t unitSize) {
    const std::string_view bytes = object.take(object.takeCount(), unitSize);
    if (unitSize == 1 && isAscii(bytes)) return {std::string(bytes)};
    std::u16string units;
    units.reserve(bytes.size() / unitSize);
    for (std::size_t at = 0; at < bytes.size(); at += unitSize) {
      units.push_back(static_cast<char16_t>(bigEndian(bytes.substr(at, unitSize))));
    }
    return {utf8(units)};
  }

  PropertyList readArray(BinaryObject& object) const {
    References references = table_.takeReferences(object, object.takeCount());
    PropertyList::Array items;
    while (!references.empty()) items.push_back(readValue(references.next()));
    return {std::move(items)};
  }

  PropertyList readDictionary(BinaryObject& object) const {
    const std::uint64_t count = object.takeCount();
    References keys = table_.takeReferences(object, count);
    References values = table_.takeReferences(object, count);
    PropertyList::Dictionary dictionary;
    while (!keys.empty()) {
      const PropertyList key = readValue(keys.next());
      if (key.text() == nullptr) return {};
      dictionary.emplace_back(*key.text(), readValue(values.next()));
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
