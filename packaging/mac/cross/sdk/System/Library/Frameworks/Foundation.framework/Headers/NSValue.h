#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

FOUNDATION_EXPORT @interface NSValue : NSObject <NSCopying>
@end

FOUNDATION_EXPORT @interface NSNumber : NSValue
+ (NSNumber*)numberWithInteger:(NSInteger)value;
+ (NSNumber*)numberWithBool:(BOOL)value;
+ (NSNumber*)numberWithInt:(int)value;
@end

NS_ASSUME_NONNULL_END
