#pragma once

#include <memory>

#include "controller/LauncherController.h"
#include "process/ProgramStarter.h"

namespace launcher {

/// The platform's services, each made once.
struct PlatformServices {
  std::unique_ptr<ApplicationBundle> bundle;
  std::unique_ptr<ProcessTable> processes;
  std::unique_ptr<ProgramStarter> starter;
  std::unique_ptr<Sleeper> sleeper;
  std::unique_ptr<HostResolver> resolver;
  std::unique_ptr<LinkDetector> links;
  std::unique_ptr<OriginAttribute> origin;
  std::unique_ptr<Translations> translations;
  ListingToolMaker listingTool;
  std::unique_ptr<WorkQueue> mainQueue;
};

/// The application's services. The first use makes them. They are never destroyed, since background
/// work may still use them while the process ends. Any thread.
const PlatformServices& platformServices();

}  // namespace launcher
