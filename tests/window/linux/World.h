#pragma once

#include <memory>
#include <semaphore>
#include <string>

#include "controller/LauncherController.h"
#include "tests/doubles/FakeBundle.h"
#include "tests/doubles/FakeHostResolver.h"
#include "tests/doubles/FakeListingTool.h"
#include "tests/doubles/FakeOriginAttribute.h"
#include "tests/doubles/FakeProcessTable.h"
#include "tests/doubles/FakeProgramStarter.h"
#include "tests/doubles/FakeSleeper.h"
#include "tests/doubles/FakeTranslations.h"
#include "tests/doubles/WordLinkDetector.h"

namespace launcher {

/// A resolver that can be made to take its time.
class GatedResolver : public FakeHostResolver {
 public:
  std::optional<std::vector<SocketAddress>> addresses(const std::string& host) const override {
    if (gated) gate.acquire();
    return FakeHostResolver::addresses(host);
  }

  bool gated = false;
  mutable std::binary_semaphore gate{0};
};

/// What surrounds a window under test. Host names are not resolved, no image is attached.
struct World {
  FakeBundle bundle;
  GatedResolver resolver;
  WordLinkDetector links;
  FakeOriginAttribute origin;
  FakeProcessTable processes;
  FakeProgramStarter starter;
  FakeSleeper sleeper;
  FakeTranslations translations;
  std::string listing;  ///< what the listing tool prints; empty: it cannot be started

  LaunchControl launchControl{{bundle, processes, starter, sleeper}};
  std::unique_ptr<WorkQueue> mainQueue = makeMainQueue();
  ListingToolMaker listingTool = [this] {
    auto tool = std::make_shared<FakeListingTool>();
    tool->startable = !listing.empty();
    tool->output = {listing};
    return tool;
  };

  ControllerServices services() {
    return {.bundle = bundle,
            .resolver = resolver,
            .links = links,
            .origin = origin,
            .processes = processes,
            .translations = translations,
            .listingTool = listingTool,
            .sleeper = sleeper,
            .launchControl = launchControl,
            .mainQueue = *mainQueue};
  }
};

}  // namespace launcher
