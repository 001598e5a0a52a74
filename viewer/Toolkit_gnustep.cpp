#include "app/gnustep/AppKitLikeness.h"
#include "app/gnustep/Display.h"
#include "viewer/Toolkit.h"

namespace viewer {

bool prepareToolkit() {
  if (!launcher::hasDisplay()) return false;
  launcher::installAppKitLikeness();
  return true;
}

}  // namespace viewer
