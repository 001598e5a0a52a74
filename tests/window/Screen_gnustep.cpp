#include "app/gnustep/Display.h"
#include "tests/window/Screen.h"

namespace launcher {

bool hasScreen() { return hasDisplay(); }

}  // namespace launcher
