#import "controller/mac/OperationQueues.h"

#include <utility>

namespace launcher {
namespace {

class OperationWorkQueue : public WorkQueue {
 public:
  explicit OperationWorkQueue(NSOperationQueue* queue) : queue_([queue retain]) {}
  ~OperationWorkQueue() override { [queue_ release]; }
  OperationWorkQueue(const OperationWorkQueue&) = delete;
  OperationWorkQueue& operator=(const OperationWorkQueue&) = delete;

  /// Destroys the item as soon as it has run, not when the platform releases the block.
  void add(std::function<void()> item) override {
    const auto held = std::make_shared<std::function<void()>>(std::move(item));
    [queue_ addOperationWithBlock:^{
      std::exchange(*held, nullptr)();
    }];
  }

 private:
  NSOperationQueue* queue_;
};

}  // namespace

std::unique_ptr<WorkQueue> makeWorkQueue(NSOperationQueue* queue) {
  return std::make_unique<OperationWorkQueue>(queue);
}

std::unique_ptr<WorkQueue> makeMainQueue() { return makeWorkQueue([NSOperationQueue mainQueue]); }

}  // namespace launcher
