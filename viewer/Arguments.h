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

/// The form of the arguments, for a message to the person.
inline constexpr const char* kUsage = "-l HOST -i ADDRESS -r FOLDER";

/// One line that tells the arguments, for the output.
std::string description(const Arguments& arguments);

/// The arguments, each in a line of its own, for the window.
std::string message(const Arguments& arguments);

/// Reads the arguments with which the launcher starts a viewer; absent for any others.
///
///     vexlink -l HOST -i ADDRESS -r FOLDER
std::optional<Arguments> parseArguments(int argc, const char* const* argv);

}  // namespace viewer
