#include "discovery/linux/attached-images/MountTable.h"

#include <algorithm>
#include <optional>

namespace launcher {
namespace {

std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> pieces;
  for (std::size_t end = 0; end != std::string_view::npos; text.remove_prefix(end + 1)) {
    end = text.find(separator);
    pieces.push_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
  }
  return pieces;
}

bool isOctalDigit(char c) { return c >= '0' && c <= '7'; }

/// Whether the text begins with an escape: a backslash and three octal digits.
bool beginsWithEscape(std::string_view text) {
  return text.size() >= 4 && text[0] == '\\' && text[1] <= '3' &&
         std::all_of(text.begin() + 1, text.begin() + 4, isOctalDigit);
}

/// The byte of three octal digits.
char octalByte(std::string_view digits) {
  unsigned value = 0;
  for (const char digit : digits) value = value * 8U + static_cast<unsigned>(digit - '0');
  return static_cast<char>(value);
}

std::string unescaped(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    const bool escape = beginsWithEscape(text);
    bytes += escape ? octalByte(text.substr(1, 3)) : text.front();
    text.remove_prefix(escape ? 4 : 1);
  }
  return bytes;
}

/// A line's fields are separated by one blank: two identifiers, the device's number, the mounted
/// folder, the mount point, options, any number of tags, "-", the file system's type, the source.
std::optional<Mount> parseLine(std::string_view line) {
  const std::vector<std::string_view> fields = split(line, ' ');
  constexpr std::ptrdiff_t kFieldsBeforeTags = 6;
  if (std::ssize(fields) < kFieldsBeforeTags) return std::nullopt;
  const auto end = std::find(fields.begin() + kFieldsBeforeTags, fields.end(), "-");
  if (fields.end() - end < 3) return std::nullopt;
  return Mount{std::string(fields[2]), unescaped(end[2]), unescaped(fields[4])};
}

}  // namespace

std::vector<Mount> parseMountTable(std::string_view text) {
  std::vector<Mount> mounts;
  for (const std::string_view line : split(text, '\n')) {
    if (auto mount = parseLine(line)) mounts.push_back(*std::move(mount));
  }
  return mounts;
}

}  // namespace launcher
