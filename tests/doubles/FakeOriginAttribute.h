#pragma once

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "discovery/OriginAttribute.h"

namespace launcher {

/// Attributes by path, as the test sets them. Reading a path without one fails. An answer may be
/// replaced, as if the attribute had changed between two readings.
class FakeOriginAttribute : public OriginAttribute {
 public:
  std::map<std::string, std::string> values;
  std::optional<std::ptrdiff_t> probeAnswer;  ///< instead of the size
  std::optional<std::ptrdiff_t> readAnswer;   ///< instead of the number of written bytes

  mutable std::vector<std::string> paths;    ///< of all readings
  mutable std::vector<std::string> buffers;  ///< as they came in

  std::ptrdiff_t read(const std::string& path, std::byte* buffer, std::size_t size) const override {
    paths.push_back(path);
    const auto found = values.find(path);
    if (found == values.end()) return -1;
    const std::string& value = found->second;
    if (buffer == nullptr) return probeAnswer.value_or(std::ssize(value));

    const std::span<std::byte> room(buffer, size);
    std::string& before = buffers.emplace_back();
    for (const std::byte byte : room) before += static_cast<char>(byte);
    if (value.size() > size) return -1;
    std::ranges::copy(std::as_bytes(std::span(value)), room.begin());
    return readAnswer.value_or(std::ssize(value));
  }
};

}  // namespace launcher
