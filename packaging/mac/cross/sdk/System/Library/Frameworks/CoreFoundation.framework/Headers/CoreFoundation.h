#pragma once

#include <MacTypes.h>
#include <os/availability.h>
#include <stdbool.h>
#include <stdint.h>

#if defined(__cplusplus)
#define CF_EXPORT extern "C"
#else
#define CF_EXPORT extern
#endif

#define CF_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define CF_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")

CF_ASSUME_NONNULL_BEGIN

typedef signed long CFIndex;
typedef unsigned long CFTypeID;
typedef UInt32 CFStringEncoding;
typedef const void* CFTypeRef;
typedef const struct __attribute__((objc_bridge(id))) __CFAllocator* CFAllocatorRef;
typedef const struct __attribute__((objc_bridge(NSArray))) __CFArray* CFArrayRef;
typedef const struct __attribute__((objc_bridge(NSData))) __CFData* CFDataRef;
typedef const struct __attribute__((objc_bridge(NSDictionary))) __CFDictionary* CFDictionaryRef;
typedef const struct __attribute__((objc_bridge(NSString))) __CFString* CFStringRef;

typedef struct {
  CFIndex domain;
  SInt32 error;
} CFStreamError;

enum : CFStringEncoding { kCFStringEncodingUTF8 = 0x08000100 };

CF_EXPORT const CFAllocatorRef _Null_unspecified kCFAllocatorDefault;

CF_EXPORT void CFRelease(CFTypeRef object);
CF_EXPORT CFTypeID CFGetTypeID(CFTypeRef object);

CF_EXPORT CFIndex CFArrayGetCount(CFArrayRef array);
CF_EXPORT const void* _Null_unspecified CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index);

CF_EXPORT CFTypeID CFDataGetTypeID(void);
CF_EXPORT CFIndex CFDataGetLength(CFDataRef data);
CF_EXPORT const UInt8* _Null_unspecified CFDataGetBytePtr(CFDataRef data);

CF_EXPORT CFStringRef _Nullable CFStringCreateWithBytes(CFAllocatorRef _Nullable allocator, const UInt8* bytes,
                                              CFIndex length, CFStringEncoding encoding,
                                              Boolean isExternalRepresentation);

CF_ASSUME_NONNULL_END
