#pragma once

#include <string_view>

namespace launcher {

/// The program's one diagnostic entry point. Takes a message of any type, the source file's name
/// and the operation's name. Writes nothing: the shipped program stays silent. Any thread.
///
///     SDLog(error, "ViewController", "extractSourceFromDMG()");
template <class Message>
void SDLog(const Message& /*message*/, std::string_view /*filename*/ = {},
           std::string_view /*funcname*/ = {}) noexcept {}

}  // namespace launcher
