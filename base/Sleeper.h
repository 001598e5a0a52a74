#pragma once

#include <memory>

namespace launcher {

/// Puts the calling thread to sleep.
class Sleeper {
 public:
  virtual ~Sleeper() = default;

  /// Blocks for the given number of seconds; signals do not shorten it.
  virtual void sleep(double seconds) = 0;
};

std::unique_ptr<Sleeper> makeSleeper();

}  // namespace launcher
