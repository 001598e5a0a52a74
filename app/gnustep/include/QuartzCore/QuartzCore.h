#pragma once

// The part of QuartzCore that this program uses.

#import <AppKit/AppKit.h>

/// What lies behind a view's content: a background with a border along its edge, both with rounded
/// corners. The border is black and as wide as it says, 0 to begin with; without a background
/// colour only the border is drawn.
@interface CALayer : NSObject {
 @private
  CGFloat _borderWidth;
  CGFloat _cornerRadius;
  NSColor* _backgroundColor;
  NSView* _view;  // not retained: a view owns its layer
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
