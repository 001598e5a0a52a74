#pragma once

#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace launcher {

/// One line of tests/data/foundation-property-lists.tsv.
struct FoundationList {
  std::string systems;  ///< "both" or "macOS"
  std::string bytes;
  std::string expected;
};

inline std::string decodedBase64(std::string_view text) {
  constexpr std::string_view kDigits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string bytes;
  unsigned bits = 0;
  int count = 0;
  for (const char digit : text.substr(0, text.find('='))) {
    bits = bits << 6U | static_cast<unsigned>(kDigits.find(digit));
    count += 6;
    if (count < 8) continue;
    count -= 8;
    bytes += static_cast<char>(bits >> static_cast<unsigned>(count));
  }
  return bytes;
}

inline std::vector<FoundationList> foundationLists() {
  std::ifstream file(TEST_DATA "/foundation-property-lists.tsv");
  std::vector<FoundationList> lists;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with('#')) continue;
    std::istringstream columns(line);
    FoundationList& list = lists.emplace_back();
    std::string base64;
    std::getline(columns, list.systems, '\t');
    std::getline(columns, base64, '\t');
    std::getline(columns, list.expected);
    list.bytes = decodedBase64(base64);
  }
  return lists;
}

/// The text with control characters as \xNN.
inline std::string visible(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string all;
  for (const char c : text) {
    if (c >= ' ' || c < 0) {
      all += c;
    } else {
      all += {'\\', 'x', kDigits[static_cast<unsigned>(c) >> 4U],
              kDigits[static_cast<unsigned>(c) & 0xFU]};
    }
  }
  return all;
}

}  // namespace launcher
