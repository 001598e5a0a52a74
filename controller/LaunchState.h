#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace launcher {

enum class LaunchState : std::uint8_t {
  noURL,              ///< the location or the IP address is not valid; nothing can be launched
  runningReadyToRun,  ///< both inputs are valid and the viewer runs; a press starts it again
  readyToRun,         ///< both inputs are valid and the viewer does not run; a press starts it
  gettingIPAddress,   ///< a launch was requested and the host name is being resolved
};

}  // namespace launcher

/// The hash of a state is its ordinal.
template <>
struct std::hash<launcher::LaunchState> {
  std::size_t operator()(launcher::LaunchState state) const noexcept {
    return static_cast<std::size_t>(state);
  }
};
