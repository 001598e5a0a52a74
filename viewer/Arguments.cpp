#include "viewer/Arguments.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace viewer {

std::string description(const Arguments& arguments) {
  return "sample viewer: host " + arguments.host + ", IP address " + arguments.ipAddress +
         ", resource folder " + arguments.resourceFolder;
}

std::string message(const Arguments& arguments) {
  return "The remote-control viewer would be given:\n\nHost: " + arguments.host +
         "\nIP address: " + arguments.ipAddress + "\nResource folder: " + arguments.resourceFolder;
}

std::optional<Arguments> parseArguments(int argc, const char* const* argv) {
  const std::span<const char* const> texts(argv, static_cast<std::size_t>(argc));
  if (texts.size() != 7) return std::nullopt;

  const std::string_view host(texts[1]);
  const std::string_view address(texts[3]);
  const std::string_view folder(texts[5]);
  if (host != "-l" || address != "-i" || folder != "-r") return std::nullopt;
  return Arguments{.host = texts[2], .ipAddress = texts[4], .resourceFolder = texts[6]};
}

}  // namespace viewer
