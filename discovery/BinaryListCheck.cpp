#include "discovery/BinaryListCheck.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "discovery/BinaryObjects.h"
#include "discovery/PropertyListLimits.h"

namespace launcher {
namespace {

/// The memory and depth of a value, with everything that it holds.
struct Extent {
  std::size_t memory = 0;  ///< 0: not known yet
  int depth = 0;           ///< the levels from the value down to its deepest part
};

class Walk {
 public:
  explicit Walk(const ObjectTable& table) : table_(table), extents_(table.count()) {}

  /// The extent of a value at `depth`. The check of the depth also stops at a list that refers to
  /// itself.
  Extent extentOf(std::uint64_t reference, int depth) {
    checkDepth(depth);
    BinaryObject object = table_.object(reference);
    Extent& extent = extents_[reference];
    if (extent.memory == 0) extent = measured(object, depth);
    checkDepth(depth + extent.depth - 1);
    return extent;
  }

 private:
  Extent measured(BinaryObject& object, int depth) {
    switch (object.kind()) {
      case ObjectKind::constant:
        return leaf(0);
      case ObjectKind::integer:
      case ObjectKind::real:
      case ObjectKind::date:
        return leaf(object.take(std::uint64_t{1} << object.low()).size());
      case ObjectKind::identifier:
        return leaf(object.take(object.low() + 1).size());
      case ObjectKind::data:
      case ObjectKind::ascii:
        return leaf(object.take(object.takeCount()).size());
      case ObjectKind::utf16:
        return wideText(object);
      case ObjectKind::array:
      case ObjectKind::set:
        return sum(table_.takeReferences(object, object.takeCount()), depth);
      case ObjectKind::dictionary:
        return dictionary(object, depth);
    }
    throw UnreadableList("an object of an unknown kind");
  }

  /// macOS refuses an empty text in UTF-16: it writes empty texts in ASCII.
  static Extent wideText(BinaryObject& object) {
    const std::string_view units = object.take(object.takeCount(), 2);
    if (units.empty()) throw UnreadableList("an empty text in UTF-16");
    return leaf(units.size());
  }

  static Extent leaf(std::size_t size) { return {valueMemory(size), 1}; }

  /// All keys come first, then all values.
  Extent dictionary(BinaryObject& object, int depth) {
    const std::uint64_t count = object.takeCount();
    const References keys = table_.takeReferences(object, count);
    const References values = table_.takeReferences(object, count);
    checkKeys(keys);
    const Extent ofKeys = sum(keys, depth);
    const Extent ofValues = sum(values, depth);
    checkMemory(ofKeys.memory + ofValues.memory);
    return {ofKeys.memory + ofValues.memory, std::max(ofKeys.depth, ofValues.depth)};
  }

  void checkKeys(References keys) const {
    while (!keys.empty()) {
      const ObjectKind kind = table_.object(keys.next()).kind();
      if (kind == ObjectKind::array || kind == ObjectKind::set || kind == ObjectKind::dictionary) {
        throw UnreadableList("a key that holds values");
      }
    }
  }

  Extent sum(References references, int depth) {
    Extent sum{valueMemory(0), 1};
    while (!references.empty()) {
      const Extent item = extentOf(references.next(), depth + 1);
      sum = {sum.memory + item.memory, std::max(sum.depth, item.depth + 1)};
      checkMemory(sum.memory);
    }
    return sum;
  }

  const ObjectTable& table_;
  std::vector<Extent> extents_;
};

}  // namespace

bool isBinaryList(std::string_view bytes) { return bytes.starts_with("bplist0"); }

void checkBinaryList(std::string_view bytes) {
  const ObjectTable table(bytes);
  checkMemory(Walk(table).extentOf(table.top(), 1).memory);
}

}  // namespace launcher
