#pragma once

// The part of QuartzCore that this program uses.

#import <AppKit/AppKit.h>

/// A view's layer as a plain value: what is set is kept, and nothing is drawn.
@interface CALayer : NSObject {
 @private
  CGFloat _borderWidth;
  CGFloat _cornerRadius;
  NSColor* _backgroundColor;
}

+ (instancetype)layer;

- (CGFloat)borderWidth;
- (void)setBorderWidth:(CGFloat)width;
- (CGFloat)cornerRadius;
- (void)setCornerRadius:(CGFloat)radius;
/// Absent until it has been set.
- (CGColorRef)backgroundColor;
- (void)setBackgroundColor:(CGColorRef)color;

@end
