#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// What the fuzz targets share. A target's file holds one `FUZZ_TARGET(text) { … }`. It is called
/// with one input after the other, and ends the program if an answer is wrong.
namespace launcher::fuzzing {

/// Ends the program with a report if something that must always hold does not.
inline void require(bool holds, const char* what) {
  if (holds) return;
  static_cast<void>(std::fprintf(stderr, "wrong: %s\n", what));
  std::abort();
}

/// Uses a result, so that the compiler keeps the call that made it.
inline void use(std::string_view text) {
  static volatile std::size_t sink = 0;
  sink = sink + text.size();
}

}  // namespace launcher::fuzzing

#define FUZZ_TARGET(text)                                                             \
  static void runOne(std::string_view text);                                          \
  extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) { \
    runOne({reinterpret_cast<const char*>(data), size});                              \
    return 0;                                                                         \
  }                                                                                   \
  static void runOne(std::string_view text)
