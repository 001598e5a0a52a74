#pragma once

#include <CoreFoundation/CoreFoundation.h>

typedef struct __CFHost* CFHostRef;

enum CFHostInfoType : int {
  kCFHostAddresses = 0,
  kCFHostNames = 1,
  kCFHostReachability = 2,
};
typedef enum CFHostInfoType CFHostInfoType;

CF_EXPORT CFHostRef CFHostCreateWithName(CFAllocatorRef allocator, CFStringRef hostname);
CF_EXPORT Boolean CFHostStartInfoResolution(CFHostRef host, CFHostInfoType info,
                                            CFStreamError* error);
CF_EXPORT CFArrayRef CFHostGetAddressing(CFHostRef host, Boolean* hasBeenResolved);
