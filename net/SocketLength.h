#pragma once

#include <sys/socket.h>

#include <cstddef>

namespace launcher {

/// A byte count as the socket calls take it. Ends the program where it does not fit 32 bits.
socklen_t socketLength(std::size_t bytes);

}  // namespace launcher
