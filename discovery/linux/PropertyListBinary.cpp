#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/Unicode.h"
#include "discovery/linux/BinaryObjects.h"
#include "discovery/linux/PropertyListForms.h"

namespace launcher {
namespace {

constexpr std::string_view kMagic = "bplist0";

/// References, consumed one by one.
class References {
 public:
  References(std::string_view bytes, std::uint64_t size) : bytes_(bytes), size_(size) {}

  bool empty() const { return bytes_.empty(); }

  std::uint64_t next() {
    const std::uint64_t reference = bigEndian(bytes_.substr(0, size_));
    bytes_.remove_prefix(size_);
    return reference;
  }

 private:
  std::string_view bytes_;
  std::uint64_t size_;
};

/// Refuses what would take too much memory, each value counted as often as it is referred to. Every
/// object is looked at once, so that this takes little time even where the count is immense.
class MemoryCheck {
 public:
  explicit MemoryCheck(const ObjectTable& table) : table_(table), memory_(table.count()) {}

  /// The memory of a value with all that it holds.
  std::size_t memoryOf(std::uint64_t reference, int depth) {
    checkDepth(depth);
    BinaryObject object = table_.object(reference);
    std::size_t& memory = memory_[reference];
    if (memory == 0) memory = contentMemory(object, depth);
    return memory;
  }

 private:
  std::size_t contentMemory(BinaryObject& object, int depth) {
    switch (object.kind()) {
      case ObjectKind::ascii:
        return valueMemory(object.take(object.takeCount()).size());
      case ObjectKind::utf16:
        return valueMemory(object.take(object.takeCount(), 2).size());
      case ObjectKind::array:
      case ObjectKind::set:
        return sum(object.take(object.takeCount(), table_.referenceSize()), depth);
      case ObjectKind::dictionary:
        return sum(object.take(object.takeCount(), 2 * table_.referenceSize()), depth);
      default:
        return valueMemory(0);
    }
  }

  std::size_t sum(std::string_view bytes, int depth) {
    std::size_t memory = valueMemory(0);
    References references(bytes, table_.referenceSize());
    while (!references.empty()) {
      memory += memoryOf(references.next(), depth + 1);
      checkMemory(memory);
    }
    return memory;
  }

  const ObjectTable& table_;
  std::vector<std::size_t> memory_;  ///< of each object; 0: not looked at yet
};

class BinaryReader {
 public:
  explicit BinaryReader(std::string_view bytes) : table_(bytes) {}

  PropertyList read() const {
    checkMemory(MemoryCheck(table_).memoryOf(table_.top(), 1));
    return readValue(table_.top(), 1);
  }

 private:
  PropertyList readValue(std::uint64_t reference, int depth) const {
    checkDepth(depth);
    BinaryObject object = table_.object(reference);
    switch (object.kind()) {
      case ObjectKind::ascii:
        return readAscii(object);
      case ObjectKind::utf16:
        return readUtf16(object);
      case ObjectKind::array:
        return readArray(object, depth);
      case ObjectKind::dictionary:
        return readDictionary(object, depth);
      case ObjectKind::set:
        readArray(object, depth);
        return {};
      default:
        checkOther(object);
        return {};
    }
  }

  static PropertyList readAscii(BinaryObject& object) {
    const std::string_view text = object.take(object.takeCount());
    if (!isAscii(text)) throw UnreadableList("a text has other characters than it says");
    return {std::string(text)};
  }

  static PropertyList readUtf16(BinaryObject& object) {
    const std::string_view bytes = object.take(object.takeCount(), 2);
    std::u16string units;
    units.reserve(bytes.size() / 2);
    for (std::size_t at = 0; at < bytes.size(); at += 2) {
      units.push_back(static_cast<char16_t>(bigEndian(bytes.substr(at, 2))));
    }
    return {utf8(units)};
  }

  PropertyList readArray(BinaryObject& object, int depth) const {
    References references = takeReferences(object, object.takeCount());
    PropertyList::Array items;
    while (!references.empty()) items.push_back(readValue(references.next(), depth + 1));
    return {std::move(items)};
  }

  /// All the keys stand before all the values.
  PropertyList readDictionary(BinaryObject& object, int depth) const {
    const std::uint64_t count = object.takeCount();
    References keys = takeReferences(object, count);
    References values = takeReferences(object, count);
    PropertyList::Dictionary dictionary;
    bool hasTextKeys = true;
    while (!keys.empty()) {
      std::optional<std::string> key = readKey(keys.next(), depth + 1);
      hasTextKeys = hasTextKeys && key;
      dictionary.emplace_back(std::move(key).value_or(""), readValue(values.next(), depth + 1));
    }
    return hasTextKeys ? PropertyList(std::move(dictionary)) : PropertyList();
  }

  /// The key, or absent where it is not a text.
  std::optional<std::string> readKey(std::uint64_t reference, int depth) const {
    const ObjectKind kind = table_.object(reference).kind();
    if (kind == ObjectKind::array || kind == ObjectKind::set || kind == ObjectKind::dictionary) {
      throw UnreadableList("a key that holds values");
    }
    const PropertyList key = readValue(reference, depth);
    return key.text() == nullptr ? std::nullopt : std::optional(*key.text());
  }

  References takeReferences(BinaryObject& object, std::uint64_t count) const {
    return {object.take(count, table_.referenceSize()), table_.referenceSize()};
  }

  static void checkOther(BinaryObject& object) {
    if (!isOther(object)) throw UnreadableList("an object of an unknown kind");
  }

  static bool isOther(BinaryObject& object) {
    const std::uint64_t low = object.low();
    const std::uint64_t power = std::uint64_t{1} << low;
    switch (object.kind()) {
      case ObjectKind::constant:  // null, false, true
        return low == 0x0 || low == 0x8 || low == 0x9;
      case ObjectKind::integer:
        return object.take(power).size() <= 16;
      case ObjectKind::real:
        object.take(power);
        return power == 4 || power == 8;
      case ObjectKind::date:
        return object.take(power).size() == 8;
      case ObjectKind::data:
        object.take(object.takeCount());
        return true;
      case ObjectKind::identifier:
        return bigEndian(object.take(low + 1)) <= std::numeric_limits<std::uint32_t>::max();
      default:
        return false;
    }
  }

  ObjectTable table_;
};

}  // namespace

bool isBinaryPropertyList(std::string_view bytes) { return bytes.starts_with(kMagic); }

PropertyList readBinaryPropertyList(std::string_view bytes) { return BinaryReader(bytes).read(); }

}  // namespace launcher
