#pragma once

#include <string>

namespace viewer {

/// Makes the window toolkit ready. False where there is no display to show a window on.
bool prepareToolkit();

/// The launcher's icon in its resource folder.
std::string iconIn(const std::string& resourceFolder);

}  // namespace viewer
