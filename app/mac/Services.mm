#include "app/mac/Services.h"

#import "controller/mac/OperationQueues.h"
#import "controller/mac/ViewController.h"

namespace launcher {
namespace {

Services* makeServices() {
  auto* made = new Services{
      .bundle = makeApplicationBundle(),
      .processes = makeProcessTable(),
      .starter = makeProgramStarter(),
      .sleeper = makeSleeper(),
      .resolver = makeHostResolver(),
      .links = makeLinkDetector(),
      .origin = makeOriginAttribute(),
      .translations = makeTranslations(),
      .listingTool = nullptr,
      .mainQueue = makeMainQueue(),
  };
  made->listingTool = makeListingToolMaker(*made->bundle);
  return made;
}

}  // namespace

const Services& services() {
  static const Services* const instance = makeServices();
  return *instance;
}

LaunchControl& LaunchControl::sharedInstance() {
  static auto* const instance = new LaunchControl({
      .bundle = *services().bundle,
      .processes = *services().processes,
      .starter = *services().starter,
      .sleeper = *services().sleeper,
  });
  return *instance;
}

const ControllerServices& controllerServices() {
  static const auto* const instance = new ControllerServices{
      .bundle = *services().bundle,
      .resolver = *services().resolver,
      .links = *services().links,
      .origin = *services().origin,
      .processes = *services().processes,
      .translations = *services().translations,
      .listingTool = services().listingTool,
      .sleeper = *services().sleeper,
      .launchControl = LaunchControl::sharedInstance(),
      .mainQueue = *services().mainQueue,
  };
  return *instance;
}

}  // namespace launcher
