#import "tests/window/mac/Stage.h"

#import "base/mac/Conversions.h"
#include "controller/LauncherController.h"
#import "controller/mac/OperationQueues.h"
#include "tests/doubles/FakeListingTool.h"

namespace launcher {
namespace {

std::shared_ptr<ListingTool> makeListingTool() {
  auto tool = std::make_shared<FakeListingTool>();
  tool->startable = !stage().listing.empty();
  tool->output = {stage().listing};
  return tool;
}

void handleNextEvent() {
  NSEvent* event = [NSApp nextEventMatchingMask:NSEventMaskAny
                                      untilDate:[NSDate dateWithTimeIntervalSinceNow:0.01]
                                         inMode:NSDefaultRunLoopMode
                                        dequeue:YES];
  if (event != nil) [NSApp sendEvent:event];
}

}  // namespace

Stage& stage() {
  static auto* const instance = new Stage;
  return *instance;
}

void clearStage() {
  LaunchControl::sharedInstance().terminateProc();
  LaunchControl::sharedInstance().setRunningAppPID(noProcess);
  Stage& now = stage();
  now.bundle = {};
  now.resolver.answer.reset();
  now.resolver.asked.clear();
  now.origin.values.clear();
  now.processes.processes.clear();
  now.starter.starts.clear();
  now.sleeper.sleeps.clear();
  now.translations.table.clear();
  now.listing.clear();
}

LaunchControl& LaunchControl::sharedInstance() {
  static auto* const instance =
      new LaunchControl({stage().bundle, stage().processes, stage().starter, stage().sleeper});
  return *instance;
}

const ControllerServices& controllerServices() {
  static const auto* const makeTool = new ListingToolMaker(makeListingTool);
  static auto* const mainQueue = makeMainQueue().release();
  static const auto* const services = new ControllerServices{
      .bundle = stage().bundle,
      .resolver = stage().resolver,
      .links = stage().links,
      .origin = stage().origin,
      .processes = stage().processes,
      .translations = stage().translations,
      .listingTool = *makeTool,
      .sleeper = stage().sleeper,
      .launchControl = LaunchControl::sharedInstance(),
      .mainQueue = *mainQueue,
  };
  return *services;
}

bool eventually(const std::function<bool()>& condition) {
  NSDate* deadline = [NSDate dateWithTimeIntervalSinceNow:30];
  while (!condition()) {
    if ([deadline timeIntervalSinceNow] < 0) return false;
    @autoreleasepool {
      handleNextEvent();
    }
  }
  return true;
}

void settle() {
  bool reached = false;
  makeMainQueue()->add([&reached] { reached = true; });
  eventually([&reached] { return reached; });
}

ViewController* loadedController() {
  ViewController* controller = [[[ViewController alloc] initWithNibName:@"ViewController"
                                                                 bundle:nil] autorelease];
  [controller view];
  finishWork(controller);
  return controller;
}

void finishWork(ViewController* controller) {
  [[controller backgroundQueue] waitUntilAllOperationsAreFinished];
  settle();
}

std::string textOf(NSTextField* field) { return toStdString([field stringValue]); }

}  // namespace launcher
