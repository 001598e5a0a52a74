#pragma once

// The part of CoreGraphics that this program uses.

#import <AppKit/NSColor.h>

#include <cstdint>

using CGWindowLevel = std::int32_t;
using CGWindowLevelKey = std::int32_t;

enum : CGWindowLevelKey { kCGFloatingWindowLevelKey = 5 };

extern "C" CGWindowLevel CGWindowLevelForKey(CGWindowLevelKey key);

extern "C" bool CGColorEqualToColor(CGColorRef first, CGColorRef second);
