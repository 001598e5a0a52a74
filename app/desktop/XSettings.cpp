#include "app/desktop/XSettings.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <optional>

namespace launcher {
namespace {

enum class Kind : std::uint8_t { number = 0, text = 1, colour = 2 };

constexpr std::size_t headLength = 4;    // the byte order, and three bytes unused
constexpr std::size_t colourLength = 8;  // four numbers of two bytes

/// Takes numbers and texts from the front of the bytes; absent where there are too few.
class Reader {
 public:
  explicit Reader(std::string_view bytes)
      : rest_(bytes), swapped_(!bytes.empty() && (bytes[0] != 0) != isBigEndian) {}

  std::optional<std::string_view> bytes(std::size_t length) {
    if (rest_.size() < length) return std::nullopt;
    const auto taken = rest_.substr(0, length);
    rest_.remove_prefix(length);
    return taken;
  }

  /// A text that fills up whole groups of four bytes.
  std::optional<std::string_view> padded(std::size_t length) {
    const auto taken = bytes(length);
    return taken && bytes((4 - length % 4) % 4) ? taken : std::nullopt;
  }

  template <class Number>
  std::optional<Number> number() {
    const auto taken = bytes(sizeof(Number));
    if (!taken) return std::nullopt;
    std::array<char, sizeof(Number)> storage{};
    std::copy(taken->begin(), taken->end(), storage.begin());
    if (swapped_) std::reverse(storage.begin(), storage.end());
    return std::bit_cast<Number>(storage);
  }

 private:
  static constexpr bool isBigEndian = std::endian::native == std::endian::big;

  std::string_view rest_;
  bool swapped_;
};

bool readText(Reader& reader, const std::string& name, XSettings& settings) {
  const auto length = reader.number<std::uint32_t>();
  const auto text = length ? reader.padded(*length) : std::nullopt;
  if (text) settings.texts[name] = *text;
  return text.has_value();
}

bool readNumber(Reader& reader, const std::string& name, XSettings& settings) {
  const auto number = reader.number<std::int32_t>();
  if (number) settings.numbers[name] = *number;
  return number.has_value();
}

/// Whether a setting was there and understood.
bool readSetting(Reader& reader, XSettings& settings) {
  const auto kind = reader.number<Kind>();
  const auto unused = reader.bytes(1);
  const auto length = reader.number<std::uint16_t>();
  const auto name = length ? reader.padded(*length) : std::nullopt;
  const auto serial = reader.number<std::uint32_t>();
  if (!kind || !unused || !name || !serial) return false;
  switch (*kind) {
    case Kind::number:
      return readNumber(reader, std::string(*name), settings);
    case Kind::text:
      return readText(reader, std::string(*name), settings);
    case Kind::colour:
      return reader.bytes(colourLength).has_value();
  }
  return false;
}

}  // namespace

XSettings parseXSettings(std::string_view bytes) {
  XSettings settings;
  Reader reader(bytes);
  if (!reader.bytes(headLength) || !reader.number<std::uint32_t>()) return settings;
  const auto count = reader.number<std::uint32_t>().value_or(0);
  for (std::uint32_t i = 0; i < count && readSetting(reader, settings); ++i) continue;
  return settings;
}

}  // namespace launcher
