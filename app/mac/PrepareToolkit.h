#pragma once

namespace launcher {

/// What the platform's window toolkit needs before the application's main function. Ends the
/// program with one line where no window can be shown.
void prepareToolkit();

}  // namespace launcher
