#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

static const NSInteger NSOperationQueueDefaultMaxConcurrentOperationCount = -1;

FOUNDATION_EXPORT @interface NSOperationQueue : NSObject
@property(class, readonly, retain) NSOperationQueue* mainQueue;
- (void)addOperationWithBlock:(void (^)(void))block;
- (void)waitUntilAllOperationsAreFinished;
@property NSInteger maxConcurrentOperationCount;
@property(getter=isSuspended) BOOL suspended;
@end

NS_ASSUME_NONNULL_END
