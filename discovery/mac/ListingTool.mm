#include <mutex>

#import "base/mac/Conversions.h"
#include "discovery/ListingTool.h"

namespace launcher {
namespace {

/// Holds the output handler apart from the tool: the platform's reader may be calling it while it
/// is removed.
class Output {
 public:
  void setHandler(ListingTool::OutputHandler handler) {
    const std::scoped_lock lock(mutex_);
    handler_ = std::move(handler);
  }

  void handle(std::string_view bytes) {
    const std::scoped_lock lock(mutex_);
    if (handler_) handler_(bytes);
  }

 private:
  std::mutex mutex_;
  ListingTool::OutputHandler handler_;
};

/// `availableData` raises an exception if the pipe fails; then there is nothing more to read.
NSData* availableData(NSFileHandle* handle) {
  @try {
    return [handle availableData];
  } @catch (NSException*) {
    return nil;
  }
}

void readSome(NSFileHandle* handle, Output& output) {
  NSData* data = availableData(handle);
  if ([data length] == 0) {
    // At the end of the output the platform would call this handler again and again.
    [handle setReadabilityHandler:nil];
  } else {
    output.handle({static_cast<const char*>([data bytes]), [data length]});
  }
}

/// `launch` raises an exception if it cannot start the tool.
bool launched(NSTask* task) {
  @try {
    [task launch];
    return true;
  } @catch (NSException*) {
    return false;
  }
}

class TaskTool : public ListingTool {
 public:
  explicit TaskTool(NSString* path) : task_([[NSTask alloc] init]), pipe_([[NSPipe pipe] retain]) {
    [task_ setLaunchPath:path];
    [task_ setArguments:@[ @"info", @"-plist" ]];
    [task_ setStandardOutput:pipe_];
    [task_ setStandardError:pipe_];
  }
  ~TaskTool() override {
    removeReader();
    [pipe_ release];
    [task_ release];
  }
  TaskTool(const TaskTool&) = delete;
  TaskTool& operator=(const TaskTool&) = delete;

  void setOutputHandler(OutputHandler handler) override {
    if (!handler) {
      removeReader();
      return;
    }
    output_->setHandler(std::move(handler));
    const auto output = output_;
    [[pipe_ fileHandleForReading] setReadabilityHandler:^(NSFileHandle* handle) {
      readSome(handle, *output);
    }];
  }

  /// The handler may release this run, and with it the platform's copy of the handler. Call a copy,
  /// so that the handler outlives its own call.
  void setExitHandler(ExitHandler handler) override {
    [task_ setTerminationHandler:^(NSTask* /*task*/) {
      const ExitHandler called = handler;
      called();
    }];
  }

  bool launch() override {
    if (launched(task_)) return true;
    removeReader();
    return false;
  }

  void waitUntilExit() override { [task_ waitUntilExit]; }

 private:
  void removeReader() {
    output_->setHandler({});
    [[pipe_ fileHandleForReading] setReadabilityHandler:nil];
  }

  NSTask* task_;
  NSPipe* pipe_;
  std::shared_ptr<Output> output_ = std::make_shared<Output>();
};

}  // namespace

std::shared_ptr<ListingTool> makeListingToolAt(const std::string& path) {
  @autoreleasepool {
    return std::make_shared<TaskTool>(toNSString(path));
  }
}

ListingToolMaker makeListingToolMaker(const ApplicationBundle& /*bundle*/) {
  return [] { return std::make_shared<TaskTool>(@"/usr/bin/hdiutil"); };
}

}  // namespace launcher
