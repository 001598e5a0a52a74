#pragma once

#include <optional>
#include <string>

namespace viewer {

/// What the launcher hands to a viewer, each text exactly as received.
struct Arguments {
  std::string host;
  std::string ipAddress;
  std::string resourceFolder;
};

/// The arguments of a program that was started as the launcher starts a viewer; absent where they
/// are anything else.
///
///     vexlink -l HOST -i ADDRESS -r FOLDER
std::optional<Arguments> parseArguments(int argc, const char* const* argv);

}  // namespace viewer
