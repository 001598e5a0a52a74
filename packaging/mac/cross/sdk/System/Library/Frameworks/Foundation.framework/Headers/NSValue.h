#pragma once

#import <Foundation/NSObject.h>

FOUNDATION_EXPORT @interface NSValue : NSObject <NSCopying>
@end

FOUNDATION_EXPORT @interface NSNumber : NSValue
+ (NSNumber*)numberWithBool:(BOOL)value;
+ (NSNumber*)numberWithInt:(int)value;
@end
