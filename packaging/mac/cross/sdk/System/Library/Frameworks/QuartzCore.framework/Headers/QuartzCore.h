#pragma once

#import <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

FOUNDATION_EXPORT @interface CALayer : NSObject
+ (instancetype)layer;
@property CGFloat borderWidth;
@property CGFloat cornerRadius;
@property(nullable) CGColorRef backgroundColor;
@end

NS_ASSUME_NONNULL_END
