#pragma once

#include <optional>
#include <string>

namespace launcher {

/// Makes AppKit, or what stands in for it, ready for these tests. Once, before anything else. Gives
/// the reason where the tests cannot run here, such as that there is no screen.
std::optional<std::string> prepareToolkit();

}  // namespace launcher
