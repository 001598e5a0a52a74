#pragma once

#include <cstdint>
#include <string_view>

/// The binary form of a property list: a header, the objects one after another, a table of their
/// offsets, a trailer. An object is a marker byte (its kind in the upper half, its size in the
/// lower), perhaps a longer size, and its content. An array or a dictionary holds references, which
/// are indices into the table. All numbers have their highest byte first.
///
/// Every operation throws `UnreadableList` for bytes of another form.
namespace launcher {

enum class ObjectKind {
  constant = 0x0,
  integer = 0x1,
  real = 0x2,
  date = 0x3,
  data = 0x4,
  ascii = 0x5,
  utf16 = 0x6,
  identifier = 0x8,
  array = 0xA,
  set = 0xC,
  dictionary = 0xD,
};

/// The number in the bytes. Of more than eight bytes the last eight count.
std::uint64_t bigEndian(std::string_view bytes);

/// One object, read step by step from its marker on.
class BinaryObject {
 public:
  explicit BinaryObject(std::string_view rest);

  ObjectKind kind() const { return kind_; }

  /// The marker's lower half.
  std::uint64_t low() const { return low_; }

  /// Reads the number of items. The marker holds it up to 14; a larger number follows the marker.
  std::uint64_t takeCount();

  /// Reads the bytes of the next `count` items of `size` bytes each; `size` is not 0.
  std::string_view take(std::uint64_t count, std::uint64_t size = 1);

 private:
  std::string_view rest_;
  ObjectKind kind_ = ObjectKind::constant;
  std::uint64_t low_ = 0;
};

/// References to objects, read one by one.
class References {
 public:
  References(std::string_view bytes, std::uint64_t size) : bytes_(bytes), size_(size) {}

  bool empty() const { return bytes_.empty(); }
  std::uint64_t next();

 private:
  std::string_view bytes_;
  std::uint64_t size_;  ///< of one reference in bytes, at least 1
};

/// The table of offsets, and the objects before it, to which the offsets point.
class ObjectTable {
 public:
  /// `bytes` are the whole list and must outlive the table and its objects.
  explicit ObjectTable(std::string_view bytes);

  std::uint64_t count() const { return count_; }

  /// The index of the outermost value.
  std::uint64_t top() const { return top_; }

  BinaryObject object(std::uint64_t reference) const;

  /// Reads the next `count` references of an object.
  References takeReferences(BinaryObject& object, std::uint64_t count) const;

 private:
  void check() const;
  std::uint64_t offsetAt(std::uint64_t index) const;

  std::uint64_t offsetSize_ = 0;
  std::uint64_t referenceSize_ = 0;
  std::uint64_t count_ = 0;
  std::uint64_t top_ = 0;
  std::string_view objects_;
  std::string_view offsets_;
};

}  // namespace launcher
