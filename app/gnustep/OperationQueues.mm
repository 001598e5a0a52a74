#import "controller/mac/OperationQueues.h"

#import <AppKit/AppKit.h>

#include <utility>

/// An item of work as an operation. This runtime knows no blocks.
///
/// It runs on a thread of its own: the toolkit's pool lets an operation wait behind a busy one,
/// though the queue is not serial.
@interface WorkOperation : NSOperation {
  std::function<void()> _item;
  BOOL _hasThread;
}
+ (instancetype)withItem:(std::function<void()>)item;
@end

@implementation WorkOperation

+ (instancetype)withItem:(std::function<void()>)item {
  WorkOperation* operation = [[[self alloc] init] autorelease];
  operation->_item = std::move(item);
  return operation;
}

/// A queue starts an operation that says so where it stands, any other one on its pool. The base
/// class refuses to run one that says so still.
- (BOOL)isConcurrent {
  return !_hasThread;
}

- (void)start {
  _hasThread = YES;
  [NSThread detachNewThreadSelector:@selector(runOnThread) toTarget:self withObject:nil];
}

- (void)runOnThread {
  [super start];
}

/// Lets go of what the item holds as soon as it has run, on the same thread.
- (void)main {
  const std::function<void()> item = std::exchange(_item, nullptr);
  item();
}

@end

namespace launcher {
namespace {

class OperationWorkQueue : public WorkQueue {
 public:
  explicit OperationWorkQueue(NSOperationQueue* queue) : queue_([queue retain]) {}
  ~OperationWorkQueue() override { [queue_ release]; }
  OperationWorkQueue(const OperationWorkQueue&) = delete;
  OperationWorkQueue& operator=(const OperationWorkQueue&) = delete;

  void add(std::function<void()> item) override {
    @autoreleasepool {
      [queue_ addOperation:[WorkOperation withItem:std::move(item)]];
    }
  }

 private:
  NSOperationQueue* queue_;
};

/// GNUstep's own main queue runs its items on worker threads, hence the run loop; its modal mode
/// is left out so that no item runs inside an alert.
class RunLoopWorkQueue : public WorkQueue {
 public:
  void add(std::function<void()> item) override {
    @autoreleasepool {
      [[WorkOperation withItem:std::move(item)]
          performSelectorOnMainThread:@selector(main)
                           withObject:nil
                        waitUntilDone:NO
                                modes:@[ NSDefaultRunLoopMode, NSEventTrackingRunLoopMode ]];
    }
  }
};

}  // namespace

std::unique_ptr<WorkQueue> makeWorkQueue(NSOperationQueue* queue) {
  return std::make_unique<OperationWorkQueue>(queue);
}

std::unique_ptr<WorkQueue> makeMainQueue() { return std::make_unique<RunLoopWorkQueue>(); }

}  // namespace launcher
