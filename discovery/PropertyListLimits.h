#pragma once

#include <cstddef>
#include <stdexcept>

/// The limits of a property list. Readers check them before they make values: a list of a few bytes
/// may be deeply nested or refer to one value many times, and must cost neither time nor memory.
namespace launcher {

/// Thrown for bytes that are no property list or go beyond the limits. Says what is wrong with
/// them.
class UnreadableList : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Room for a listing of some 14,000 attached images.
inline constexpr std::size_t kMostListBytes = 16U << 20U;

/// Room for a listing of some 10,000 attached images of 35 values and keys each, and their texts.
inline constexpr std::size_t kMostListMemory = 32U << 20U;

inline constexpr int kDeepestNesting = 512;

/// The approximate memory of one value or key with `textSize` bytes of text.
constexpr std::size_t valueMemory(std::size_t textSize) { return 64 + textSize; }

/// Refuses a list whose values together take too much memory.
inline void checkMemory(std::size_t memory) {
  if (memory > kMostListMemory) throw UnreadableList("too many values");
}

/// Refuses a value that is nested too deeply. The outermost value has depth 1.
inline void checkDepth(int depth) {
  if (depth > kDeepestNesting) throw UnreadableList("nested too deeply");
}

}  // namespace launcher
