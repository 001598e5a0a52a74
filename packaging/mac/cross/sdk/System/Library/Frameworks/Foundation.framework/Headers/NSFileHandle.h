#pragma once

#import <Foundation/NSObject.h>

@class NSData;

FOUNDATION_EXPORT @interface NSFileHandle : NSObject
@property(readonly, copy) NSData* availableData;
@property(copy) void (^readabilityHandler)(NSFileHandle* handle);
@end

FOUNDATION_EXPORT @interface NSPipe : NSObject
+ (NSPipe*)pipe;
@property(readonly, retain) NSFileHandle* fileHandleForReading;
@property(readonly, retain) NSFileHandle* fileHandleForWriting;
@end
