#pragma once

#include <cstddef>
#include <stdexcept>

/// How far a property list may go. Whoever reads one asks before anything is made, so that a list
/// of a few bytes, nested or referring to one value many times, costs neither time nor memory.
namespace launcher {

/// Thrown for bytes that are no property list, or too much of one; says what is wrong with them.
class UnreadableList : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Room for a listing of some 14,000 attached images.
inline constexpr std::size_t kMostListBytes = 16U << 20U;

/// Room for a listing of some 10,000 attached images of 35 values and keys each, and their texts.
inline constexpr std::size_t kMostListMemory = 32U << 20U;

inline constexpr int kDeepestNesting = 512;

/// Roughly the memory of one value or key with that much text.
constexpr std::size_t valueMemory(std::size_t textSize) { return 64 + textSize; }

/// Refuses a list whose values take too much memory together.
inline void checkMemory(std::size_t memory) {
  if (memory > kMostListMemory) throw UnreadableList("too many values");
}

/// Refuses a value that lies in too many others. The outermost has depth 1.
inline void checkDepth(int depth) {
  if (depth > kDeepestNesting) throw UnreadableList("nested too deeply");
}

}  // namespace launcher
