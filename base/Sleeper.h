#pragma once

#include <memory>

namespace launcher {

/// Lets the calling thread rest.
class Sleeper {
 public:
  virtual ~Sleeper() = default;

  /// Blocks the calling thread for the given number of seconds, also across signals.
  virtual void sleep(double seconds) = 0;
};

std::unique_ptr<Sleeper> makeSleeper();

}  // namespace launcher
