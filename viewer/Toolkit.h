#pragma once

namespace viewer {

/// Makes the window toolkit ready. False where there is no display to show a window on.
bool prepareToolkit();

}  // namespace viewer
