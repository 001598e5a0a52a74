#pragma once

#include <functional>
#include <vector>

#include "base/Sleeper.h"

namespace launcher {

/// Remembers each rest, in seconds, and takes none.
class FakeSleeper : public Sleeper {
 public:
  std::vector<double> sleeps;
  std::function<void()> onSleep = [] {};

  void sleep(double seconds) override {
    sleeps.push_back(seconds);
    onSleep();
  }
};

}  // namespace launcher
