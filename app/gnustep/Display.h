#pragma once

namespace launcher {

/// Whether there is a display to show a window on.
bool hasDisplay();

}  // namespace launcher
