#include "discovery/linux/attached-images/MountTable.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <map>
#include <optional>
#include <system_error>
#include <unordered_set>
#include <utility>

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

/// The byte that three octal digits stand for.
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

std::optional<int> parseNumber(std::string_view text) {
  int number = 0;
  const auto [rest, error] = std::from_chars(text.begin(), text.end(), number);
  return error == std::errc() && rest == text.end() ? std::optional(number) : std::nullopt;
}

/// Reads a line. One blank separates its fields: the mount's identifier and its parent's, the
/// device's number, the mounted folder, the mount point, options, any number of tags, "-", the file
/// system's type, the source.
std::optional<Mount> parseLine(std::string_view line) {
  const std::vector<std::string_view> fields = split(line, ' ');
  constexpr std::ptrdiff_t kFieldsBeforeTags = 6;
  if (std::ssize(fields) < kFieldsBeforeTags) return std::nullopt;
  const auto end = std::find(fields.begin() + kFieldsBeforeTags, fields.end(), "-");
  if (fields.end() - end < 3) return std::nullopt;

  const auto id = parseNumber(fields[0]);
  const auto parent = parseNumber(fields[1]);
  if (!id || !parent) return std::nullopt;
  return Mount{*id,
               *parent,
               std::string(fields[2]),
               unescaped(fields[3]),
               unescaped(fields[4]),
               unescaped(end[1]),
               unescaped(end[2])};
}

/// Finds the mount for a path, as the kernel does.
class MountTree {
 public:
  explicit MountTree(const std::vector<Mount>& mounts) {
    std::unordered_set<int> listed;
    for (const Mount& mount : mounts) listed.insert(mount.id);
    for (const Mount& mount : mounts) {
      const bool hasParent = listed.contains(mount.parent) && mount.parent != mount.id;
      children_[{hasParent ? mount.parent : kOutside, mount.mountPoint}] = mount.id;
    }
  }

  /// The mount that a path leads to.
  int at(const std::string& path) const {
    int mount = kOutside;
    std::size_t steps =
        children_.size();  // the limit ends the walk in a table that runs in circles
    const auto enter = [&](const std::string& folder) {
      for (auto child = children_.find({mount, folder}); child != children_.end() && steps > 0;
           child = children_.find({mount, folder}), --steps) {
        mount = child->second;
      }
    };
    enter("/");
    for (std::size_t end = 0; end < path.size();) {
      end = std::min(path.find('/', end + 1), path.size());
      enter(path.substr(0, end));
    }
    return mount;
  }

 private:
  static constexpr int kOutside = 0;  ///< the parent of the outermost mount

  std::map<std::pair<int, std::string>, int> children_;  ///< by parent and mount point
};

}  // namespace

std::vector<Mount> parseMountTable(std::string_view text) {
  std::vector<Mount> mounts;
  for (const std::string_view line : split(text, '\n')) {
    if (auto mount = parseLine(line)) mounts.push_back(*std::move(mount));
  }
  return mounts;
}

std::vector<Mount> reachableMounts(const std::vector<Mount>& mounts) {
  const MountTree tree(mounts);
  std::vector<Mount> reachable;
  std::copy_if(mounts.begin(), mounts.end(), std::back_inserter(reachable),
               [&](const Mount& mount) { return tree.at(mount.mountPoint) == mount.id; });
  return reachable;
}

}  // namespace launcher
