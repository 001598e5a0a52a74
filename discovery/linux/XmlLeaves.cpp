#include "discovery/linux/XmlLeaves.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <system_error>

namespace launcher {
namespace {

constexpr std::uint64_t kLowestMagnitude = std::uint64_t{1} << 63U;

bool isDigit(char character) { return character >= '0' && character <= '9'; }

std::string_view withoutLeading(std::string_view text, std::string_view characters) {
  text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
  return text;
}

/// Whether the text has the pattern's characters, "d" standing for a digit.
bool matches(std::string_view text, std::string_view pattern) {
  return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(),
                    [](char character, char expected) {
                      return expected == 'd' ? isDigit(character) : character == expected;
                    });
}

}  // namespace

bool isInteger(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  text = withoutLeading(text, kBlanks);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text = withoutLeading(text.substr(1), kBlanks);
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  if (hexadecimal) text.remove_prefix(2);

  std::uint64_t magnitude = 0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), magnitude, hexadecimal ? 16 : 10);
  return error == std::errc() && end == text.data() + text.size() &&
         (!negative || magnitude <= kLowestMagnitude);
}

bool isReal(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error != std::errc::invalid_argument && end == text.data() + text.size();
}

bool isDate(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  const std::size_t year = std::min(text.find('-'), text.size());
  return std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(year), isDigit) &&
         matches(text.substr(year), "-dd-ddTdd:dd:ddZ");
}

}  // namespace launcher
