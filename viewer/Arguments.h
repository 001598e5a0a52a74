#pragma once

#include <optional>
#include <string>

namespace viewer {

/// The launcher's arguments for a viewer, unchanged.
struct Arguments {
  std::string host;
  std::string ipAddress;
  std::string resourceFolder;
};

/// Reads the arguments with which the launcher starts a viewer; absent for any others.
///
///     vexlink -l HOST -i ADDRESS -r FOLDER
std::optional<Arguments> parseArguments(int argc, const char* const* argv);

}  // namespace viewer
