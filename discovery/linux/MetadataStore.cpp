#include "discovery/linux/MetadataStore.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>
#include <utility>

#include "base/linux/Descriptor.h"
#include "base/linux/Spawn.h"

// This file runs the desktop's tool instead of loading its library, so that a store that hangs or
// crashes does so in another process.
namespace launcher {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::string_view kAttribute = "metadata::download-uri";
constexpr std::size_t kLongestOutput = 1U << 16U;

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

/// The session bus leads to the store. Without one the tool could start a bus of its own and leave
/// it running.
bool hasSessionBus() {
  if (!variable("DBUS_SESSION_BUS_ADDRESS").empty()) return true;
  const std::string folder = variable("XDG_RUNTIME_DIR");
  std::error_code ignored;
  return !folder.empty() && std::filesystem::exists(folder + "/bus", ignored);
}

/// Everything that a pipe holds up to its end. Absent if that takes too long or is too much.
std::optional<std::string> outputOf(const Descriptor& pipe, Clock::time_point deadline) {
  std::string output;
  std::array<char, 4096> buffer{};
  pollfd event{pipe.number(), POLLIN, 0};
  while (output.size() < kLongestOutput) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
    if (left.count() <= 0) break;
    if (poll(&event, 1, static_cast<int>(left.count())) != 1) continue;
    const ssize_t size = read(pipe.number(), buffer.data(), buffer.size());
    if (size == 0) return output;
    if (size < 0) break;
    output.append(buffer.data(), static_cast<std::size_t>(size));
  }
  return std::nullopt;
}

std::shared_ptr<SpawnedChild> start(const std::string& tool, const std::string& path,
                                    Descriptor output) {
  return spawn({.path = tool,
                .arguments = {"info", "--attributes=" + std::string(kAttribute), "--", path},
                .output = output.number()});
}

/// The tool's output about a file, or absent.
std::optional<std::string> answer(const std::string& path, const MetadataTool& tool) try {
  const auto deadline = Clock::now() + tool.limit;
  PipeEnds pipe = PipeEnds::make();
  const auto child = start(tool.path, path, std::move(pipe.writeEnd));
  if (child == nullptr) return std::nullopt;
  auto output = outputOf(pipe.readEnd, deadline);
  child->terminate();
  return output;
} catch (const std::exception&) {
  return std::nullopt;
}

/// The last line without its line feed. Only this line counts: the lines before it may hold the
/// file's name, which may imitate an attribute.
std::string_view lastLine(std::string_view output) {
  if (output.ends_with('\n')) output.remove_suffix(1);
  return output.substr(output.rfind('\n') + 1);
}

}  // namespace

std::optional<std::string> downloadAddress(const std::string& path, const MetadataTool& tool) {
  if (!hasSessionBus()) return std::nullopt;
  const std::optional<std::string> output = answer(path, tool);
  if (!output) return std::nullopt;
  const std::string prefix = "  " + std::string(kAttribute) + ": ";
  const std::string_view line = lastLine(*output);
  if (!line.starts_with(prefix)) return std::nullopt;
  return std::string(line.substr(prefix.size()));
}

}  // namespace launcher
