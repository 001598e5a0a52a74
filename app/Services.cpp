#include <memory>

#include "controller/LauncherController.h"
#include "process/ProgramStarter.h"

namespace launcher {
namespace {

/// Never destroys it, since background work may still use it while the process ends.
template <typename Service>
Service& kept(std::unique_ptr<Service> made) {
  return *made.release();
}

const ControllerServices* makeServices() {
  const ApplicationBundle& bundle = kept(makeApplicationBundle());
  const ProcessTable& processes = kept(makeProcessTable());
  Sleeper& sleeper = kept(makeSleeper());
  return new ControllerServices{
      .bundle = bundle,
      .resolver = kept(makeHostResolver()),
      .links = kept(makeLinkDetector()),
      .origin = kept(makeOriginAttribute()),
      .processes = processes,
      .translations = kept(makeTranslations()),
      .listingTool = *new ListingToolMaker(makeListingToolMaker(bundle)),
      .sleeper = sleeper,
      .launchControl = *new LaunchControl({bundle, processes, kept(makeProgramStarter()), sleeper}),
      .mainQueue = kept(makeMainQueue()),
  };
}

}  // namespace

const ControllerServices& controllerServices() {
  static const ControllerServices* const instance = makeServices();
  return *instance;
}

LaunchControl& LaunchControl::sharedInstance() { return controllerServices().launchControl; }

}  // namespace launcher
