#pragma once

#include <CoreFoundation/CoreFoundation.h>

CF_ASSUME_NONNULL_BEGIN

typedef struct __CFHost* CFHostRef;

enum CFHostInfoType : int {
  kCFHostAddresses = 0,
  kCFHostNames = 1,
  kCFHostReachability = 2,
};
typedef enum CFHostInfoType CFHostInfoType;

CF_EXPORT CFHostRef CFHostCreateWithName(CFAllocatorRef _Nullable allocator, CFStringRef hostname)
    API_DEPRECATED("Use Network framework", macos(10.3, 15.0));
CF_EXPORT Boolean CFHostStartInfoResolution(CFHostRef host, CFHostInfoType info,
                                            CFStreamError* _Nullable error)
    API_DEPRECATED("Use Network framework", macos(10.3, 15.0));
CF_EXPORT CFArrayRef _Nullable CFHostGetAddressing(CFHostRef host,
                                                 Boolean* _Nullable hasBeenResolved)
    API_DEPRECATED("Use Network framework", macos(10.3, 15.0));

CF_ASSUME_NONNULL_END
