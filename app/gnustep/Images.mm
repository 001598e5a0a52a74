// Images made smaller, without losing lines.

#import <AppKit/AppKit.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

@interface NSImageView (ImagesExchange)
@end

@implementation NSImageView (ImagesExchange)

- (void)launcher_smoothDrawRect:(NSRect)rect {
  [[NSGraphicsContext currentContext] setImageInterpolation:NSImageInterpolationHigh];
  [self launcher_smoothDrawRect:rect];
}

@end

namespace launcher {

void installImages() {
  exchangeMethods([NSImageView class], @selector(drawRect:), @selector(launcher_smoothDrawRect:));
}

}  // namespace launcher
