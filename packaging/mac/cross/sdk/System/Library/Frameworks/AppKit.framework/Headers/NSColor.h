#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

FOUNDATION_EXPORT @interface NSColorSpace : NSObject
@property(class, readonly, retain) NSColorSpace* genericGrayColorSpace;
@end

FOUNDATION_EXPORT @interface NSColor : NSObject
@property(class, readonly, retain) NSColor* greenColor;
@property(class, readonly, retain) NSColor* redColor;
@property(class, readonly, retain) NSColor* whiteColor;
@property(readonly) CGColorRef CGColor;
@property(readonly) CGFloat whiteComponent;
- (nullable NSColor*)colorUsingColorSpace:(NSColorSpace*)space;
@end

NS_ASSUME_NONNULL_END
