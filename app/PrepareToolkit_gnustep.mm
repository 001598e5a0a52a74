#include "app/PrepareToolkit.h"

#include "app/gnustep/AppKitLikeness.h"
#include "app/gnustep/Display.h"

namespace launcher {

void prepareToolkit() {
  requireDisplay();
  installAppKitLikeness();
}

}  // namespace launcher
