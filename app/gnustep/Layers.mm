// Layers behind views: a background and a border with rounded corners, drawn before the view's own
// content.

#import "app/gnustep/AppKitLikeness.h"

#import <CoreGraphics/CoreGraphics.h>
#import <QuartzCore/QuartzCore.h>

#include <algorithm>

#import "app/gnustep/Methods.h"

namespace {

/// The layers by the views that retain them; main thread only.
NSMapTable* layers() {
  static NSMapTable* const table =
      NSCreateMapTable(NSNonRetainedObjectMapKeyCallBacks, NSObjectMapValueCallBacks, 2);
  return table;
}

CALayer* layerOf(NSView* view) { return static_cast<CALayer*>(NSMapGet(layers(), view)); }

/// A layer's colour is the named colour itself.
CGColorRef asLayerColour(NSColor* colour) { return reinterpret_cast<CGColorRef>(colour); }
NSColor* asNamedColour(CGColorRef colour) { return reinterpret_cast<NSColor*>(colour); }

}  // namespace

bool CGColorEqualToColor(CGColorRef first, CGColorRef second) {
  return first == second || [asNamedColour(first) isEqual:asNamedColour(second)];
}

@interface CALayer (Views)
- (void)setView:(NSView*)view;
- (void)drawInRect:(NSRect)bounds;
@end

@implementation CALayer

+ (instancetype)layer {
  return [[[self alloc] init] autorelease];
}

- (void)dealloc {
  [_backgroundColor release];
  [super dealloc];
}

- (CGFloat)borderWidth {
  return _borderWidth;
}

- (void)setBorderWidth:(CGFloat)width {
  _borderWidth = width;
  [_view setNeedsDisplay:YES];
}

- (CGFloat)cornerRadius {
  return _cornerRadius;
}

- (void)setCornerRadius:(CGFloat)radius {
  _cornerRadius = radius;
  [_view setNeedsDisplay:YES];
}

- (CGColorRef)backgroundColor {
  return asLayerColour(_backgroundColor);
}

- (void)setBackgroundColor:(CGColorRef)color {
  [_backgroundColor autorelease];
  _backgroundColor = [asNamedColour(color) retain];
  [_view setNeedsDisplay:YES];
}

- (void)setView:(NSView*)view {
  _view = view;
}

- (void)drawInRect:(NSRect)bounds {
  const CGFloat inset = _borderWidth / 2;
  NSBezierPath* edge = [NSBezierPath bezierPathWithRoundedRect:NSInsetRect(bounds, inset, inset)
                                                       xRadius:_cornerRadius
                                                       yRadius:_cornerRadius];
  [_backgroundColor set];
  if (_backgroundColor != nil) [edge fill];
  if (_borderWidth <= 0) return;
  [[NSColor blackColor] set];
  [edge setLineWidth:_borderWidth];
  [edge stroke];
}

@end

@interface LayerBackedView : NSView
@end

@implementation LayerBackedView

- (void)setWantsLayer:(BOOL)wanted {
  if (!wanted) return [self setLayer:nil];
  if ([self layer] == nil) [self setLayer:[CALayer layer]];
}

- (BOOL)wantsLayer {
  return [self layer] != nil;
}

- (CALayer*)layer {
  return layerOf(self);
}

- (void)setLayer:(CALayer*)layer {
  [layerOf(self) setView:nil];
  NSMapRemove(layers(), self);
  if (layer != nil) NSMapInsert(layers(), self, layer);
  [layer setView:self];
  [self setNeedsDisplay:YES];
}

@end

@interface LayerColour : NSColor
@end

@implementation LayerColour

- (CGColorRef)CGColor {
  return asLayerColour(self);
}

@end

@interface NSTextField (LayerExchange)
@end

@implementation NSTextField (LayerExchange)

- (void)launcher_drawRect:(NSRect)rect {
  [layerOf(self) drawInRect:[self bounds]];
  [self launcher_drawRect:rect];
}

@end

@interface NSView (LayerExchange)
@end

@implementation NSView (LayerExchange)

- (void)launcher_dealloc {
  [layerOf(self) setView:nil];
  NSMapRemove(layers(), self);
  [self launcher_dealloc];
}

@end

namespace launcher {

void installLayers() {
  const bool known = [NSView instancesRespondToSelector:@selector(layer)];
  addMissingMethods([NSColor class], [LayerColour class]);
  addMissingMethods([NSView class], [LayerBackedView class]);
  if (known) return;
  exchangeMethods([NSTextField class], @selector(drawRect:), @selector(launcher_drawRect:));
  exchangeMethods([NSView class], @selector(dealloc), @selector(launcher_dealloc));
}

}  // namespace launcher
