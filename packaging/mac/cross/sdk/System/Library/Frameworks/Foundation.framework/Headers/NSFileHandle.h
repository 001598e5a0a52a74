#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSData;

FOUNDATION_EXPORT @interface NSFileHandle : NSObject
@property(readonly, copy) NSData* availableData;
@property(nullable, copy) void (^readabilityHandler)(NSFileHandle* handle)
    API_AVAILABLE(macos(10.7));
@end

FOUNDATION_EXPORT @interface NSPipe : NSObject
+ (NSPipe*)pipe;
@property(readonly, retain) NSFileHandle* fileHandleForReading;
@property(readonly, retain) NSFileHandle* fileHandleForWriting;
@end

NS_ASSUME_NONNULL_END
