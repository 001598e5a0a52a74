#include "discovery/linux/XmlLeaves.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <system_error>

namespace launcher {
namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }

std::string_view withoutBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  return text;
}

}  // namespace

bool isInteger(std::string_view text) {
  text = withoutBlanks(text);
  if (text.starts_with('-') || text.starts_with('+')) text = withoutBlanks(text.substr(1));
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  if (hexadecimal) text.remove_prefix(2);

  std::uint64_t magnitude = 0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), magnitude, hexadecimal ? 16 : 10);
  return error == std::errc() && end == text.data() + text.size();
}

bool isReal(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error != std::errc::invalid_argument && end == text.data() + text.size();
}

bool isDate(std::string_view text) {
  constexpr std::string_view kPattern = "-dd-ddTdd:dd:ddZ";
  if (text.starts_with('-')) text.remove_prefix(1);
  const std::string_view rest = text.substr(std::min(text.find('-'), text.size()));
  const std::string_view year = text.substr(0, text.size() - rest.size());
  return std::all_of(year.begin(), year.end(), isDigit) &&
         std::equal(rest.begin(), rest.end(), kPattern.begin(), kPattern.end(),
                    [](char character, char expected) {
                      return expected == 'd' ? isDigit(character) : character == expected;
                    });
}

}  // namespace launcher
