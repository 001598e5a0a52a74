// Blocks on operation queues. GNUstep's library is built without blocks, its pool lets an operation
// wait behind a busy one, and its main queue runs its operations on other threads.

#import <AppKit/AppKit.h>

#include <Block.h>

#include <atomic>

#import "tests/gnustep/Methods.h"
#import "tests/gnustep/StandIn.h"

/// A block as an operation on a thread of its own.
@interface BlockOperation : NSOperation {
  void (^_block)();
  BOOL _hasThread;
  std::atomic<bool> _hasRun;  // shows the thread sanitizer an order that GNUstep's library keeps
}
+ (instancetype)withBlock:(void (^)())block;
@end

@implementation BlockOperation

+ (instancetype)withBlock:(void (^)())block {
  BlockOperation* operation = [[[self alloc] init] autorelease];
  operation->_block = Block_copy(block);
  return operation;
}

- (void)dealloc {
  (void)_hasRun.load();
  Block_release(_block);
  [super dealloc];
}

/// While this is true, a queue calls `start` on the thread that adds the operation. The base
/// class's `start` refuses an operation for which it is still true.
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

- (void)main {
  _block();
  _hasRun = true;
}

@end

@interface NSOperationQueue (BlocksExchange)
@end

@implementation NSOperationQueue (BlocksExchange)

/// Leaves out the modal mode, since no item of the main queue runs while an alert is up.
- (void)launcher_addOperationWithBlock:(void (^)())block {
  @autoreleasepool {
    BlockOperation* operation = [BlockOperation withBlock:block];
    if (self != [NSOperationQueue mainQueue]) return [self addOperation:operation];
    [operation performSelectorOnMainThread:@selector(main)
                                withObject:nil
                             waitUntilDone:NO
                                     modes:@[ NSDefaultRunLoopMode, NSEventTrackingRunLoopMode ]];
  }
}

@end

namespace launcher {

void installOperationQueues() {
  exchangeMethods([NSOperationQueue class], @selector(addOperationWithBlock:),
                  @selector(launcher_addOperationWithBlock:));
}

}  // namespace launcher
