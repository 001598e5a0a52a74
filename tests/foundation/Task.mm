#include <Block.h>

#include <memory>
#include <mutex>

#include "base/linux/Spawn.h"
#import "base/mac/Conversions.h"
#import "tests/foundation/Threads.h"

namespace {

using Handler = void (^)(StandInTask* task);

/// Tells a task's handler of the child's end, as long as the task exists.
class Waiting {
 public:
  explicit Waiting(StandInTask* task) : task_(task) {}

  void set(Handler handler) {
    const std::scoped_lock lock(mutex_);
    if (handler_ != nil) Block_release(handler_);
    handler_ = nil;
    if (handler != nil) handler_ = Block_copy(handler);
  }

  /// Holds the handler during the call, but not the task.
  void end() {
    std::unique_lock lock(mutex_);
    if (handler_ == nil) return;
    const Handler called = Block_copy(handler_);
    lock.unlock();
    called(task_);
    Block_release(called);
  }

 private:
  std::mutex mutex_;
  StandInTask* const task_;
  Handler handler_ = nil;
};

}  // namespace

struct StandInChild {
  explicit StandInChild(StandInTask* task) : waiting(std::make_shared<Waiting>(task)) {}

  std::shared_ptr<Waiting> waiting;
  launcher::SpawnOptions options;
  std::shared_ptr<launcher::SpawnedChild> running;
  StandInPipe* output = nil;
};

@implementation StandInTask

+ (StandInTask*)launchedTaskWithLaunchPath:(NSString*)path arguments:(NSArray*)arguments {
  StandInTask* task = [[[StandInTask alloc] init] autorelease];
  [task setLaunchPath:path];
  [task setArguments:arguments];
  [task launch];
  return task;
}

- (id)init {
  self = [super init];
  _child = new StandInChild(self);
  return self;
}

- (void)dealloc {
  _child->waiting->set(nil);
  [_child->output release];
  delete _child;
  [super dealloc];
}

- (void)setLaunchPath:(NSString*)path {
  _child->options.path = launcher::toStdString(path);
}

- (void)setArguments:(NSArray*)arguments {
  for (NSString* argument in arguments) {
    _child->options.arguments.push_back(launcher::toStdString(argument));
  }
}

- (void)setStandardOutput:(StandInPipe*)pipe {
  _child->output = [pipe retain];
}

- (void)setStandardError:(StandInPipe*)pipe {
  NSAssert(pipe == _child->output, @"a child here has one pipe for both streams");
}

- (void)setTerminationHandler:(void (^)(StandInTask* task))handler {
  _child->waiting->set(handler);
}

- (void)launch {
  if (_child->output != nil) _child->options.output = [_child->output writer];
  _child->options.onExit = [waiting = _child->waiting] {
    launcher::onForeignThread([&] { waiting->end(); });
  };
  _child->running = launcher::spawn(_child->options);
  [_child->output closeWriter];
  if (_child->running != nullptr) return;
  [NSException raise:NSInvalidArgumentException format:@"launch path not accessible"];
}

- (void)terminate {
  _child->running->terminate();
}

- (void)waitUntilExit {
  _child->running->waitUntilExit();
}

@end
