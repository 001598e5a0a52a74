#include "discovery/DoneSignal.h"

#include <condition_variable>
#include <mutex>

namespace launcher {
namespace {

class CountingSignal : public DoneSignal {
 public:
  void signal() override {
    const std::lock_guard lock(mutex_);
    ++count_;
    changed_.notify_one();
  }

  void wait() override {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return count_ > 0; });
    --count_;
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  int count_ = 0;
};

}  // namespace

std::unique_ptr<DoneSignal> makeDoneSignal() { return std::make_unique<CountingSignal>(); }

}  // namespace launcher
