#pragma once

#include <CoreFoundation/CoreFoundation.h>

CF_ASSUME_NONNULL_BEGIN

typedef double CGFloat;
#define CGFLOAT_MAX __DBL_MAX__

struct CGPoint {
  CGFloat x;
  CGFloat y;
};
typedef struct CGPoint CGPoint;

struct CGSize {
  CGFloat width;
  CGFloat height;
};
typedef struct CGSize CGSize;

struct CGRect {
  CGPoint origin;
  CGSize size;
};
typedef struct CGRect CGRect;

typedef struct CGColor* CGColorRef;
typedef int32_t CGWindowLevel;
typedef int32_t CGWindowLevelKey;

enum : CGWindowLevelKey { kCGFloatingWindowLevelKey = 5 };

CF_EXPORT CGWindowLevel CGWindowLevelForKey(CGWindowLevelKey key);
CF_EXPORT CFDictionaryRef _Nullable CGSessionCopyCurrentDictionary(void);
CF_EXPORT bool CGColorEqualToColor(CGColorRef _Nullable a, CGColorRef _Nullable b);

CF_ASSUME_NONNULL_END
