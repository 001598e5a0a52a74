#include "base/Sleeper.h"

#include <cerrno>
#include <cmath>
#include <ctime>

namespace launcher {
namespace {

class NanoSleeper : public Sleeper {
 public:
  void sleep(double seconds) override {
    const double whole = std::floor(seconds);
    timespec rest{static_cast<time_t>(whole), static_cast<long>((seconds - whole) * 1e9)};
    while (nanosleep(&rest, &rest) == -1 && errno == EINTR) {
    }
  }
};

}  // namespace

std::unique_ptr<Sleeper> makeSleeper() { return std::make_unique<NanoSleeper>(); }

}  // namespace launcher
