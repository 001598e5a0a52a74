#include "process/ProgramStarter.h"
#import "base/mac/Conversions.h"

namespace launcher {
namespace {

class Task : public RunningProcess {
 public:
  explicit Task(NSTask* task) : task_([task retain]) {}
  ~Task() override { [task_ release]; }
  Task(const Task&) = delete;
  Task& operator=(const Task&) = delete;

  void terminate() override { [task_ terminate]; }

 private:
  NSTask* task_;
};

/// `launchedTaskWithLaunchPath:` raises an exception if it cannot start the program.
NSTask* launched(NSString* path, NSArray<NSString*>* arguments) {
  @try {
    return [NSTask launchedTaskWithLaunchPath:path arguments:arguments];
  } @catch (NSException*) {
    return nil;
  }
}

class TaskStarter : public ProgramStarter {
 public:
  std::shared_ptr<RunningProcess> start(const std::string& path,
                                        const std::vector<std::string>& arguments) override {
    @autoreleasepool {
      NSMutableArray<NSString*>* texts = [NSMutableArray arrayWithCapacity:arguments.size()];
      for (const std::string& argument : arguments) [texts addObject:toNSString(argument)];
      NSTask* task = launched(toNSString(path), texts);
      return task == nil ? nullptr : std::make_shared<Task>(task);
    }
  }
};

}  // namespace

std::unique_ptr<ProgramStarter> makeProgramStarter() { return std::make_unique<TaskStarter>(); }

}  // namespace launcher
