#pragma once

#include <string_view>

namespace launcher {

/// Ends the program when it meets an impossible state.
///
/// Writes one line to the standard error stream and aborts. Any thread.
///
///     fatalError("", "ProcessHelpers", 43)   ->   fatal error: file ProcessHelpers, line 43
///     fatalError("m", "File", 7)             ->   fatal error: m: file File, line 7
[[noreturn]] void fatalError(std::string_view message, std::string_view file, unsigned line);

}  // namespace launcher
