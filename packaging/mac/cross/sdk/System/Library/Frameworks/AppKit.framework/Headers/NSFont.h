#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

FOUNDATION_EXPORT @interface NSFont : NSObject
+ (NSFont*)systemFontOfSize:(CGFloat)size;
@property(readonly) CGFloat ascender;
@property(readonly) CGFloat descender;
@property(readonly) CGFloat leading;
@end

NS_ASSUME_NONNULL_END
