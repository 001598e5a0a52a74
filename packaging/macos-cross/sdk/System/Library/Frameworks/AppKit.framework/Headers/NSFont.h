#pragma once

#import <Foundation/Foundation.h>

FOUNDATION_EXPORT @interface NSFont : NSObject
@property(readonly) CGFloat ascender;
@property(readonly) CGFloat descender;
@property(readonly) CGFloat leading;
@end
