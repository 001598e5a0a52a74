#pragma once

namespace launcher {

/// Whether there is a screen to show windows on.
bool hasScreen();

}  // namespace launcher
