#include <cstdio>
#include <cstdlib>

#include "app/gnustep/AppKitLikeness.h"
#include "app/gnustep/Display.h"
#include "app/mac/PrepareToolkit.h"

namespace launcher {

void prepareToolkit() {
  if (!hasDisplay()) {
    std::fputs("VorxLauncher: no display to show the window on\n", stderr);
    std::exit(EXIT_FAILURE);
  }
  installAppKitLikeness();
}

}  // namespace launcher
