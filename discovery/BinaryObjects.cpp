#include "discovery/BinaryObjects.h"

#include "discovery/PropertyListLimits.h"

namespace launcher {
namespace {

constexpr std::size_t kHeaderSize = 8;
constexpr std::size_t kTrailerSize = 32;

/// Whether a field of that many bytes can hold a number.
bool canHold(std::uint64_t fieldSize, std::uint64_t value) {
  return fieldSize >= sizeof(value) || value >> (8U * fieldSize) == 0;
}

/// The bytes of an object, taken from their beginning.
struct Bytes {
  std::string_view rest;

  /// The next `count` items of `size` bytes each; `size` is not 0.
  std::string_view take(std::uint64_t count, std::uint64_t size = 1) {
    if (count > rest.size() / size) throw UnreadableList("an object is cut off");
    const std::string_view items = rest.substr(0, count * size);
    rest.remove_prefix(items.size());
    return items;
  }

  /// The number of items. The marker's lower half holds it up to 14; a larger one follows.
  std::uint64_t takeCount(std::uint64_t low) {
    if (low != 0xF) return low;
    const std::uint64_t marker = bigEndian(take(1));
    if (static_cast<ObjectKind>(marker >> 4U) != ObjectKind::integer) {
      throw UnreadableList("a count that is no number");
    }
    return bigEndian(take(std::uint64_t{1} << (marker & 0xFU)));
  }

  /// What an object that holds no others has after its marker.
  std::string_view takeContent(ObjectKind kind, std::uint64_t low) {
    switch (kind) {
      case ObjectKind::constant:
        return {};
      case ObjectKind::integer:
      case ObjectKind::real:
      case ObjectKind::date:
        return take(std::uint64_t{1} << low);
      case ObjectKind::identifier:
        return take(low + 1);
      case ObjectKind::data:
      case ObjectKind::ascii:
        return take(takeCount(low));
      case ObjectKind::utf16:
        return take(takeCount(low), 2);
      default:
        throw UnreadableList("an object of an unknown kind");
    }
  }
};

}  // namespace

std::uint64_t bigEndian(std::string_view bytes) {
  std::uint64_t value = 0;
  for (const char byte : bytes) value = value << 8U | static_cast<unsigned char>(byte);
  return value;
}

ObjectTable::ObjectTable(std::string_view bytes) {
  if (bytes.size() <= kHeaderSize + kTrailerSize) throw UnreadableList("the list is cut off");
  const std::size_t end = bytes.size() - kTrailerSize;
  const std::string_view trailer = bytes.substr(end);
  offsetSize_ = bigEndian(trailer.substr(6, 1));
  referenceSize_ = bigEndian(trailer.substr(7, 1));
  count_ = bigEndian(trailer.substr(8, 8));
  top_ = bigEndian(trailer.substr(16, 8));
  const std::uint64_t start = bigEndian(trailer.substr(24, 8));
  if (start <= kHeaderSize || start >= end) throw UnreadableList("the table lies outside");
  objects_ = bytes.substr(0, start);
  offsets_ = bytes.substr(start, end - start);
  check();
}

BinaryObject ObjectTable::object(std::uint64_t reference) const {
  if (reference >= count_) throw UnreadableList("a reference to no object");
  const std::uint64_t offset = offsetAt(reference);
  if (offset < kHeaderSize) throw UnreadableList("an object lies outside");
  Bytes bytes{objects_.substr(offset)};
  const std::uint64_t marker = bigEndian(bytes.take(1));
  const std::uint64_t low = marker & 0xFU;
  const auto kind = static_cast<ObjectKind>(marker >> 4U);
  switch (kind) {
    case ObjectKind::array:
    case ObjectKind::set:
      return {kind, {}, {bytes.take(bytes.takeCount(low), referenceSize_), referenceSize_}};
    case ObjectKind::dictionary:
      return {kind, {}, {bytes.take(bytes.takeCount(low), 2 * referenceSize_), referenceSize_}};
    default:
      return {kind, bytes.takeContent(kind, low), {}};
  }
}

void ObjectTable::check() const {
  if (offsetSize_ == 0 || referenceSize_ == 0) throw UnreadableList("a field without a size");
  if (offsets_.size() % offsetSize_ != 0 || offsets_.size() / offsetSize_ != count_) {
    throw UnreadableList("the table has another size");
  }
  checkMemory(valueMemory(0) * count_);
  if (top_ >= count_) throw UnreadableList("there is no outermost value");
  if (!canHold(referenceSize_, count_) || !canHold(offsetSize_, objects_.size())) {
    throw UnreadableList("a field is too small");
  }
  for (std::uint64_t index = 0; index < count_; ++index) {
    if (offsetAt(index) >= objects_.size()) throw UnreadableList("an object lies outside");
  }
}

std::uint64_t ObjectTable::offsetAt(std::uint64_t index) const {
  return bigEndian(offsets_.substr(index * offsetSize_, offsetSize_));
}

}  // namespace launcher
