#pragma once

#include <memory>
#include <optional>
#include <string>

namespace launcher {

/// Where the running application lies. Any thread.
class ApplicationBundle {
 public:
  virtual ~ApplicationBundle() = default;

  /// The bundle's own path without a trailing separator. On macOS it is the system's own text; on
  /// Linux, where the program may be started through a symbolic link, links are resolved.
  virtual std::string path() const = 0;

  /// The path of the resource folder without a trailing separator, or absent.
  virtual std::optional<std::string> resourcePath() const = 0;
};

std::unique_ptr<ApplicationBundle> makeApplicationBundle();

}  // namespace launcher
