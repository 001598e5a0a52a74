#include "discovery/linux/attached-images/LoopDevices.h"

#include <charconv>
#include <filesystem>
#include <map>
#include <optional>
#include <string_view>
#include <system_error>

#include "discovery/linux/attached-images/KernelFile.h"

namespace launcher {
namespace {

using Path = std::filesystem::path;

/// The partitions of a loop device by number; 0 is the whole device.
using Partitions = std::map<unsigned, std::string>;

/// Consumes a prefix and the number that follows it.
std::optional<unsigned> takeNumber(std::string_view& text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return std::nullopt;
  text.remove_prefix(prefix.size());
  unsigned number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

/// Enters "loop3" and "loop3p1" under 3.
void addDevice(std::map<unsigned, Partitions>& loops, const std::string& name) {
  std::string_view rest = name;
  const std::optional<unsigned> loop = takeNumber(rest, "loop");
  if (!loop) return;
  const std::optional<unsigned> partition = rest.empty() ? 0 : takeNumber(rest, "p");
  if (partition && rest.empty()) loops[*loop][*partition] = name;
}

/// A file's content without the line feed that the kernel adds.
std::optional<std::string> line(const Path& file) {
  std::optional<std::string> text = readKernelFile(file);
  if (text && text->ends_with('\n')) text->pop_back();
  return text;
}

std::optional<LoopDevice> readLoopDevice(const Path& folder, const Partitions& partitions) {
  const auto whole = partitions.find(0);
  if (whole == partitions.end()) return std::nullopt;
  const auto imagePath = line(folder / whole->second / "loop/backing_file");
  if (!imagePath || imagePath->empty()) return std::nullopt;

  LoopDevice loop{*imagePath, {}};
  for (const auto& [index, name] : partitions) {
    if (const auto number = line(folder / name / "dev")) loop.devices.push_back({name, *number});
  }
  return loop;
}

}  // namespace

std::vector<LoopDevice> readLoopDevices(const std::string& folder) {
  std::map<unsigned, Partitions> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    addDevice(names, entry.path().filename());
  }
  std::vector<LoopDevice> loops;
  for (const auto& [number, partitions] : names) {
    if (auto loop = readLoopDevice(folder, partitions)) loops.push_back(*std::move(loop));
  }
  return loops;
}

}  // namespace launcher
