#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "base/Sleeper.h"
#include "tests/doubles/EventLog.h"

namespace launcher {

/// Does not rest: notes the seconds of each rest, and logs its end.
class FakeSleeper : public Sleeper {
 public:
  std::vector<double> sleeps;
  std::shared_ptr<EventLog> log = std::make_shared<EventLog>();
  std::function<void()> onSleep = [] {};

  void sleep(double seconds) override {
    sleeps.push_back(seconds);
    onSleep();
    log->note("sleep");
  }
};

}  // namespace launcher
