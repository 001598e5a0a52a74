#include "app/mac/PrepareToolkit.h"

namespace launcher {

/// AppKit is ready as it is.
void prepareToolkit() {}

}  // namespace launcher
