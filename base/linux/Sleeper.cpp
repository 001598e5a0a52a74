#include "base/Sleeper.h"

#include <chrono>
#include <thread>

namespace launcher {
namespace {

class ThreadSleeper : public Sleeper {
 public:
  void sleep(double seconds) override {
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
  }
};

}  // namespace

std::unique_ptr<Sleeper> makeSleeper() { return std::make_unique<ThreadSleeper>(); }

}  // namespace launcher
