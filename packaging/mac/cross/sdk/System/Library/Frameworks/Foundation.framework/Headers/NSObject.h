#pragma once

#include <Availability.h>
#include <CoreFoundation/CoreFoundation.h>
#include <limits.h>
#include <objc/NSObject.h>
#include <os/availability.h>
#include <stdbool.h>

#if defined(__cplusplus)
#define FOUNDATION_EXPORT extern "C"
#else
#define FOUNDATION_EXPORT extern
#endif

#define NS_ENUM(type, name) enum name : type name; enum name : type
#define NS_OPTIONS(type, name) type name; enum : type

#define NS_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define NS_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")

NS_ASSUME_NONNULL_BEGIN

typedef double NSTimeInterval;

typedef struct _NSRange {
  NSUInteger location;
  NSUInteger length;
} NSRange;

static const NSInteger NSNotFound = __LONG_MAX__;

static inline NSRange NSMakeRange(NSUInteger location, NSUInteger length) {
  NSRange range = {location, length};
  return range;
}

static inline NSUInteger NSMaxRange(NSRange range) { return range.location + range.length; }

@class NSCoder;

@protocol NSCopying
- (id)copyWithZone:(nullable struct _NSZone*)zone;
@end

@protocol NSCoding
- (void)encodeWithCoder:(NSCoder*)coder;
- (nullable instancetype)initWithCoder:(NSCoder*)coder;
@end

typedef struct {
  unsigned long state;
  id __unsafe_unretained _Nullable* _Nullable itemsPtr;
  unsigned long* _Nullable mutationsPtr;
  unsigned long extra[5];
} NSFastEnumerationState;

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id __unsafe_unretained _Nullable[_Nonnull])buffer
                                    count:(NSUInteger)length;
@end

NS_ASSUME_NONNULL_END
