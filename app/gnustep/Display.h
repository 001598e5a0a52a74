#pragma once

namespace launcher {

/// Ends the program with one line and exit status 1 where no window can be shown.
void requireDisplay();

}  // namespace launcher
