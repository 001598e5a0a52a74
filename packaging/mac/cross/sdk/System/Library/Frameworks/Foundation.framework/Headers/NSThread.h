#pragma once

#import <Foundation/NSObject.h>

@class NSArray<ObjectType>;
@class NSString;

FOUNDATION_EXPORT @interface NSThread : NSObject
+ (void)detachNewThreadSelector:(SEL)selector toTarget:(id)target withObject:(id)argument;
+ (void)sleepForTimeInterval:(NSTimeInterval)seconds;
@property(class, readonly) BOOL isMainThread;
@end

@interface NSObject (NSThreadPerformAdditions)
- (void)performSelectorOnMainThread:(SEL)selector
                         withObject:(id)object
                      waitUntilDone:(BOOL)wait
                              modes:(NSArray<NSString*>*)modes;
- (void)performSelectorOnMainThread:(SEL)selector withObject:(id)object waitUntilDone:(BOOL)wait;
@end
