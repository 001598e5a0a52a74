#pragma once

#import <Foundation/NSObject.h>

FOUNDATION_EXPORT @interface NSDate : NSObject
+ (instancetype)dateWithTimeIntervalSinceNow:(NSTimeInterval)seconds;
@property(readonly) NSTimeInterval timeIntervalSinceNow;
@end
