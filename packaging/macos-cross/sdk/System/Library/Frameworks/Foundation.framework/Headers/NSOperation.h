#pragma once

#import <Foundation/NSObject.h>

FOUNDATION_EXPORT @interface NSOperationQueue : NSObject
@property(class, readonly, retain) NSOperationQueue* mainQueue;
- (void)addOperationWithBlock:(void (^)(void))block;
- (void)waitUntilAllOperationsAreFinished;
@property NSInteger maxConcurrentOperationCount;
@end
