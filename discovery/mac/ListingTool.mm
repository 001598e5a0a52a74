#include <mutex>

#import "base/mac/Conversions.h"
#include "discovery/ListingTool.h"

namespace launcher {
namespace {

/// The output handler, apart from the tool: the platform's reader may be in a call of it when it is
/// taken away.
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

/// Reading raises an exception where the pipe fails; there is nothing more to read then.
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
    // Otherwise the platform calls again and again at the end of the output.
    [handle setReadabilityHandler:nil];
  } else {
    output.handle({static_cast<const char*>([data bytes]), [data length]});
  }
}

/// The platform reports a tool that it cannot start by an exception.
bool launched(NSTask* task) {
  @try {
    [task launch];
    return true;
  } @catch (NSException*) {
    return false;
  }
}

class DiskImageTool : public ListingTool {
 public:
  DiskImageTool() : task_([[NSTask alloc] init]), pipe_([[NSPipe pipe] retain]) {
    [task_ setLaunchPath:@"/usr/bin/hdiutil"];
    [task_ setArguments:@[ @"info", @"-plist" ]];
    [task_ setStandardOutput:pipe_];
    [task_ setStandardError:pipe_];
  }
  ~DiskImageTool() override {
    [pipe_ release];
    [task_ release];
  }
  DiskImageTool(const DiskImageTool&) = delete;
  DiskImageTool& operator=(const DiskImageTool&) = delete;

  void setOutputHandler(OutputHandler handler) override {
    const bool removed = !handler;
    output_->setHandler(std::move(handler));
    NSFileHandle* reading = [pipe_ fileHandleForReading];
    if (removed) {
      [reading setReadabilityHandler:nil];
      return;
    }
    const auto output = output_;
    [reading setReadabilityHandler:^(NSFileHandle* handle) {
      readSome(handle, *output);
    }];
  }

  void setExitHandler(ExitHandler handler) override {
    [task_ setTerminationHandler:^(NSTask* task) {
      handler();
      [task setTerminationHandler:nil];
    }];
  }

  bool launch() override { return launched(task_); }

  void waitUntilExit() override { [task_ waitUntilExit]; }

 private:
  NSTask* task_;
  NSPipe* pipe_;
  std::shared_ptr<Output> output_ = std::make_shared<Output>();
};

}  // namespace

ListingToolMaker makeListingToolMaker(const ApplicationBundle& /*bundle*/) {
  return [] { return std::make_shared<DiskImageTool>(); };
}

}  // namespace launcher
