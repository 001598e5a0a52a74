#include "base/FatalError.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace launcher {

void fatalError(std::string_view message, std::string_view file, unsigned line) {
  std::string report = "fatal error: ";
  if (!message.empty()) report.append(message).append(": ");
  report.append("file ").append(file).append(", line ").append(std::to_string(line)).append("\n");
  std::fputs(report.c_str(), stderr);
  std::abort();
}

}  // namespace launcher
