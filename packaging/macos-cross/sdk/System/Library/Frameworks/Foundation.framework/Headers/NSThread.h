#pragma once

#import <Foundation/NSObject.h>

FOUNDATION_EXPORT @interface NSThread : NSObject
+ (void)sleepForTimeInterval:(NSTimeInterval)seconds;
@property(class, readonly) BOOL isMainThread;
@end

@interface NSObject (NSThreadPerformAdditions)
- (void)performSelectorOnMainThread:(SEL)selector withObject:(id)object waitUntilDone:(BOOL)wait;
@end
