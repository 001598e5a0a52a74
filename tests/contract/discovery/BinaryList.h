#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace launcher {

/// A number in `size` bytes, the highest first.
inline std::string numberBytes(std::uint64_t value, std::size_t size) {
  std::string bytes(size, '\0');
  for (std::size_t at = size; at > 0; --at, value >>= 8U) {
    bytes[at - 1] = static_cast<char>(value & 0xFFU);
  }
  return bytes;
}

/// A property list in binary form, made object by object. Nothing is checked, so it may be
/// malformed.
struct BinaryList {
  using Numbers = std::vector<std::uint64_t>;

  std::vector<std::string> objects;
  std::uint64_t top = 0;
  std::size_t referenceSize = 1;
  std::size_t offsetSize = 4;
  std::string magic = "bplist00";

  /// Marker and size of an object.
  static std::string head(unsigned kind, std::uint64_t count) {
    if (count < 15) return numberBytes(kind << 4U | count, 1);
    return numberBytes(kind << 4U | 0xFU, 1) + numberBytes(0x13, 1) + numberBytes(count, 8);
  }

  static std::string text(std::string_view ascii) {
    return head(0x5, ascii.size()) + std::string(ascii);
  }

  static std::string text(std::u16string_view units) {
    std::string bytes = head(0x6, units.size());
    for (const char16_t unit : units) bytes += numberBytes(unit, 2);
    return bytes;
  }

  std::string references(const Numbers& numbers) const {
    std::string bytes;
    for (const std::uint64_t number : numbers) bytes += numberBytes(number, referenceSize);
    return bytes;
  }

  std::string array(const Numbers& items) const {
    return head(0xA, items.size()) + references(items);
  }

  std::string dictionary(const Numbers& keys, const Numbers& values) const {
    return head(0xD, keys.size()) + references(keys) + references(values);
  }

  std::string bytes() const {
    std::string list = magic;
    std::string offsets;
    for (const std::string& object : objects) {
      offsets += numberBytes(list.size(), offsetSize);
      list += object;
    }
    const std::size_t table = list.size();
    return list + offsets + trailer(objects.size(), table);
  }

  std::string trailer(std::uint64_t count, std::uint64_t table) const {
    return std::string(6, '\0') + numberBytes(offsetSize, 1) + numberBytes(referenceSize, 1) +
           numberBytes(count, 8) + numberBytes(top, 8) + numberBytes(table, 8);
  }
};

/// Arrays nested to this depth.
inline BinaryList nestedBinaryList(std::uint64_t depth) {
  BinaryList list;
  list.referenceSize = 2;
  for (std::uint64_t level = 1; level < depth; ++level) list.objects.push_back(list.array({level}));
  list.objects.push_back(list.array({}));
  return list;
}

/// Each array holds the next one ten times.
inline BinaryList referenceBomb(std::uint64_t levels) {
  BinaryList list;
  for (std::uint64_t level = 1; level <= levels; ++level) {
    list.objects.push_back(list.array(BinaryList::Numbers(10, level)));
  }
  list.objects.push_back(BinaryList::text("bomb"));
  return list;
}

}  // namespace launcher
