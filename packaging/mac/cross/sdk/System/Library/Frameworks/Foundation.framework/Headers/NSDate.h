#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

FOUNDATION_EXPORT @interface NSDate : NSObject
+ (instancetype)dateWithTimeIntervalSinceNow:(NSTimeInterval)seconds;
@property(readonly) NSTimeInterval timeIntervalSinceNow;
@end

NS_ASSUME_NONNULL_END
