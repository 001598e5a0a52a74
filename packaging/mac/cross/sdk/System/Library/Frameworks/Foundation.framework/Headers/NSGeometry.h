#pragma once

#include <CoreGraphics/CoreGraphics.h>

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;

FOUNDATION_EXPORT const NSPoint NSZeroPoint;

static inline NSSize NSMakeSize(CGFloat width, CGFloat height) {
  NSSize size = {width, height};
  return size;
}

static inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
  NSRect rect = {{x, y}, {width, height}};
  return rect;
}

NS_ASSUME_NONNULL_END
