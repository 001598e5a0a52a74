#pragma once

// GNUstep asks this of a runtime that knows blocks.

#include <Block.h>
