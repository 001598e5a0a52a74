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

/// From `array` on, the objects of a kind hold others.
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

/// References to objects.
struct References {
  std::string_view bytes;
  std::uint64_t width = 1;  ///< of one reference in bytes, at least 1

  std::uint64_t size() const { return bytes.size() / width; }
  std::uint64_t operator[](std::uint64_t index) const {
    return bigEndian(bytes.substr(index * width, width));
  }
};

struct BinaryObject {
  ObjectKind kind = ObjectKind::constant;
  std::string_view content;  ///< the bytes of an object that holds no others
  References items;          ///< of a dictionary all keys, then all values
};

/// The table of offsets, and the objects before it, to which the offsets point.
class ObjectTable {
 public:
  /// `bytes` are the whole list and must outlive the table and its objects.
  explicit ObjectTable(std::string_view bytes);

  /// The index of the outermost value.
  std::uint64_t top() const { return top_; }

  BinaryObject object(std::uint64_t reference) const;

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
