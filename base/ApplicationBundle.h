#pragma once

#include <memory>
#include <optional>
#include <string>

namespace launcher {

/// Where the running application lies. Any thread.
class ApplicationBundle {
 public:
  virtual ~ApplicationBundle() = default;

  /// The bundle's path without a trailing separator. macOS: as the system gives it. Linux: with
  /// symbolic links resolved, since the program may be started through one.
  virtual std::string path() const = 0;

  /// The resource folder's path without a trailing separator, or absent.
  virtual std::optional<std::string> resourcePath() const = 0;
};

std::unique_ptr<ApplicationBundle> makeApplicationBundle();

}  // namespace launcher
