#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSArray<ObjectType>;
@class NSString;

FOUNDATION_EXPORT @interface NSThread : NSObject
+ (void)detachNewThreadSelector:(SEL)selector toTarget:(id)target withObject:(nullable id)argument;
+ (void)sleepForTimeInterval:(NSTimeInterval)seconds;
@property(class, readonly) BOOL isMainThread;
@end

@interface NSObject (NSThreadPerformAdditions)
- (void)performSelectorOnMainThread:(SEL)selector
                         withObject:(nullable id)object
                      waitUntilDone:(BOOL)wait
                              modes:(nullable NSArray<NSString*>*)modes;
- (void)performSelectorOnMainThread:(SEL)selector
                         withObject:(nullable id)object
                      waitUntilDone:(BOOL)wait;
@end

NS_ASSUME_NONNULL_END
