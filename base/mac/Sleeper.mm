#import <Foundation/Foundation.h>

#include "base/Sleeper.h"

namespace launcher {
namespace {

class ThreadSleeper : public Sleeper {
 public:
  void sleep(double seconds) override { [NSThread sleepForTimeInterval:seconds]; }
};

}  // namespace

std::unique_ptr<Sleeper> makeSleeper() { return std::make_unique<ThreadSleeper>(); }

}  // namespace launcher
