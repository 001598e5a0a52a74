#pragma once

#import <Foundation/Foundation.h>

FOUNDATION_EXPORT @interface NSColorSpace : NSObject
@property(class, readonly, retain) NSColorSpace* genericGrayColorSpace;
@end

FOUNDATION_EXPORT @interface NSColor : NSObject
@property(class, readonly, retain) NSColor* greenColor;
@property(class, readonly, retain) NSColor* redColor;
@property(class, readonly, retain) NSColor* whiteColor;
@property(readonly) CGColorRef CGColor;
@property(readonly) CGFloat whiteComponent;
- (NSColor*)colorUsingColorSpace:(NSColorSpace*)space;
@end
