#pragma once

#include <mutex>
#include <string>
#include <string_view>
#include <vector>

// Replaces the product's header in the tests of diagnostics: it keeps what it is handed.
namespace launcher {

struct Diagnostic {
  std::string message;
  std::string filename;
  std::string funcname;
};

inline std::mutex diagnosticsMutex;
inline std::vector<Diagnostic> diagnostics;

/// Takes a text, or a text that may be absent.
template <class Message>
void SDLog(const Message& message, std::string_view filename = {}, std::string_view funcname = {}) {
  std::string text;
  if constexpr (requires { message.has_value(); }) {
    text = message.has_value() ? std::string(*message) : "(nothing)";
  } else {
    text = message;
  }
  const std::lock_guard lock(diagnosticsMutex);
  diagnostics.push_back({text, std::string(filename), std::string(funcname)});
}

}  // namespace launcher
