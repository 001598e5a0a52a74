#include "app/gnustep/AppKitLikeness.h"
#include "app/gnustep/Display.h"
#include "viewer/mac/Toolkit.h"

namespace viewer {

bool prepareToolkit() {
  if (!launcher::hasDisplay()) return false;
  launcher::installAppKitLikeness();
  return true;
}

std::string iconIn(const std::string& resourceFolder) {
  return resourceFolder + "/VorxLauncher.png";
}

}  // namespace viewer
