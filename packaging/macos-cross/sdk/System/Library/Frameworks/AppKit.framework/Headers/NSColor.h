#pragma once

#import <Foundation/Foundation.h>

FOUNDATION_EXPORT @interface NSColor : NSObject
@property(class, readonly, retain) NSColor* greenColor;
@property(class, readonly, retain) NSColor* redColor;
@property(class, readonly, retain) NSColor* whiteColor;
@property(readonly) CGColorRef CGColor;
@end
