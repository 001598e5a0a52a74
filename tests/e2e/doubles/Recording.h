#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

/// The value of an environment variable that the test must set. Ends the program if it is not set.
inline const char* variable(const char* name) {
  const char* value = std::getenv(name);
  if (value == nullptr) std::exit(EXIT_FAILURE);
  return value;
}

/// Adds a line with this process and the event to the file that RECORD names. Ends the program if
/// that fails.
inline void record(const char* event) {
  const std::string line = std::to_string(getpid()) + " " + event + "\n";
  const int descriptor = open(variable("RECORD"), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
  const bool written =
      write(descriptor, line.data(), line.size()) == static_cast<ssize_t>(line.size());
  close(descriptor);
  if (!written) std::exit(EXIT_FAILURE);
}
