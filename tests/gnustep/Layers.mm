// Layers as plain values: they keep what they are given and draw nothing.

#import <CoreGraphics/CoreGraphics.h>
#import <QuartzCore/QuartzCore.h>

#import "tests/gnustep/Methods.h"
#import "tests/gnustep/StandIn.h"

namespace {

/// The layers by the views that retain them; main thread only.
NSMapTable* layers() {
  static NSMapTable* const table =
      NSCreateMapTable(NSNonRetainedObjectMapKeyCallBacks, NSObjectMapValueCallBacks, 2);
  return table;
}

/// A layer's colour is the named colour itself.
CGColorRef asLayerColour(NSColor* colour) { return reinterpret_cast<CGColorRef>(colour); }
NSColor* asNamedColour(CGColorRef colour) { return reinterpret_cast<NSColor*>(colour); }

}  // namespace

bool CGColorEqualToColor(CGColorRef first, CGColorRef second) {
  return first == second || [asNamedColour(first) isEqual:asNamedColour(second)];
}

CGWindowLevel CGWindowLevelForKey(CGWindowLevelKey key) {
  return key == kCGFloatingWindowLevelKey ? NSFloatingWindowLevel : NSNormalWindowLevel;
}

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
}

- (CGFloat)cornerRadius {
  return _cornerRadius;
}

- (void)setCornerRadius:(CGFloat)radius {
  _cornerRadius = radius;
}

- (CGColorRef)backgroundColor {
  return asLayerColour(_backgroundColor);
}

- (void)setBackgroundColor:(CGColorRef)color {
  [_backgroundColor autorelease];
  _backgroundColor = [asNamedColour(color) retain];
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
  return static_cast<CALayer*>(NSMapGet(layers(), self));
}

- (void)setLayer:(CALayer*)layer {
  NSMapRemove(layers(), self);
  if (layer != nil) NSMapInsert(layers(), self, layer);
}

@end

@interface LayerColour : NSColor
@end

@implementation LayerColour

- (CGColorRef)CGColor {
  return asLayerColour(self);
}

@end

@interface NSView (LayerExchange)
@end

@implementation NSView (LayerExchange)

- (void)launcher_dealloc {
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
  exchangeMethods([NSView class], @selector(dealloc), @selector(launcher_dealloc));
}

}  // namespace launcher
