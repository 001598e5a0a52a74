#pragma once

#include <optional>
#include <string>

#include "base/ApplicationBundle.h"

namespace launcher {

/// An application that lies where the test says.
class FakeBundle : public ApplicationBundle {
 public:
  std::string folder = "/Volumes/Vorx/VorxLauncher.app";
  std::optional<std::string> resources = "/Volumes/Vorx/VorxLauncher.app/Resources";

  std::string path() const override { return folder; }
  std::optional<std::string> resourcePath() const override { return resources; }
};

}  // namespace launcher
