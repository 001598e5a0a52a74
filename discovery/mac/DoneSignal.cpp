#include "discovery/DoneSignal.h"

#include <dispatch/dispatch.h>

namespace launcher {
namespace {

class DispatchSignal : public DoneSignal {
 public:
  DispatchSignal() : semaphore_(dispatch_semaphore_create(0)) {}
  ~DispatchSignal() override { dispatch_release(semaphore_); }
  DispatchSignal(const DispatchSignal&) = delete;
  DispatchSignal& operator=(const DispatchSignal&) = delete;

  void signal() override { dispatch_semaphore_signal(semaphore_); }
  void wait() override { dispatch_semaphore_wait(semaphore_, DISPATCH_TIME_FOREVER); }

 private:
  dispatch_semaphore_t semaphore_;
};

}  // namespace

std::unique_ptr<DoneSignal> makeDoneSignal() { return std::make_unique<DispatchSignal>(); }

}  // namespace launcher
