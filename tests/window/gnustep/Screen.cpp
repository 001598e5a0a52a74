#include "tests/window/mac/Screen.h"

#include "app/gnustep/Display.h"

namespace launcher {

bool hasScreen() { return hasDisplay(); }

}  // namespace launcher
