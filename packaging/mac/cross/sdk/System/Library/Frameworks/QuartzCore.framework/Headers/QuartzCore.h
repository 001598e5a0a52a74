#pragma once

#import <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

FOUNDATION_EXPORT @interface CALayer : NSObject
+ (instancetype)layer;
@property CGFloat borderWidth;
@property CGFloat cornerRadius;
@property CGColorRef backgroundColor;
@end
