#include "app/Services.h"

namespace launcher {
namespace {

PlatformServices* makeServices() {
  auto* made = new PlatformServices{
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

const PlatformServices& platformServices() {
  static const PlatformServices* const instance = makeServices();
  return *instance;
}

LaunchControl& LaunchControl::sharedInstance() {
  static auto* const instance = new LaunchControl({
      .bundle = *platformServices().bundle,
      .processes = *platformServices().processes,
      .starter = *platformServices().starter,
      .sleeper = *platformServices().sleeper,
  });
  return *instance;
}

const ControllerServices& controllerServices() {
  static const auto* const instance = new ControllerServices{
      .bundle = *platformServices().bundle,
      .resolver = *platformServices().resolver,
      .links = *platformServices().links,
      .origin = *platformServices().origin,
      .processes = *platformServices().processes,
      .translations = *platformServices().translations,
      .listingTool = platformServices().listingTool,
      .sleeper = *platformServices().sleeper,
      .launchControl = LaunchControl::sharedInstance(),
      .mainQueue = *platformServices().mainQueue,
  };
  return *instance;
}

}  // namespace launcher
