#pragma once

#import <Foundation/Foundation.h>

FOUNDATION_EXPORT @interface NSFont : NSObject
+ (NSFont*)systemFontOfSize:(CGFloat)size;
+ (NSFont*)boldSystemFontOfSize:(CGFloat)size;
@property(readonly) CGFloat ascender;
@property(readonly) CGFloat descender;
@property(readonly) CGFloat leading;
@end
