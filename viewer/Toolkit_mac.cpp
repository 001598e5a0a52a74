#include "viewer/Toolkit.h"

namespace viewer {

bool prepareToolkit() { return true; }

}  // namespace viewer
