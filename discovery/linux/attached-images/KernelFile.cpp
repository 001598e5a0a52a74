#include "discovery/linux/attached-images/KernelFile.h"

#include <array>
#include <fstream>

namespace launcher {

std::optional<std::string> readKernelFile(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  std::string text;
  std::array<char, 16384> buffer{};
  while (stream) {
    stream.read(buffer.data(), buffer.size());
    text.append(buffer.data(), static_cast<std::size_t>(stream.gcount()));
  }
  // The reading stopped at the end of the file, not at an error.
  return stream.eof() && !stream.bad() ? std::optional(std::move(text)) : std::nullopt;
}

}  // namespace launcher
