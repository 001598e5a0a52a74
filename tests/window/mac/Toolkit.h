#pragma once

#include <optional>
#include <string>

namespace launcher {

/// Makes AppKit, or its stand-in, ready for these tests. Call it once, before anything else.
/// Returns the reason if the tests cannot run here, such as that there is no screen.
std::optional<std::string> prepareToolkit();

}  // namespace launcher
