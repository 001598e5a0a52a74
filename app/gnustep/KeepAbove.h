#pragma once

namespace launcher {

/// Asks the window manager to keep a window above ordinary ones, in the manner that window managers
/// agree on. `display` is the toolkit's X display, `window` the identifier of a window that has
/// been asked to be mapped.
void keepAbove(void* display, unsigned long window);

}  // namespace launcher
