// The image formats of the icon and of the toolkit's own images. For others the toolkit would load
// a library with its hundred parts before the first window, and it looks for every image under the
// names of all formats.

#import <AppKit/AppKit.h>
#import <objc/runtime.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

@interface NSBitmapImageRep (FormatsExchange)
@end

@implementation NSBitmapImageRep (FormatsExchange)

+ (NSArray*)launcher_imageUnfilteredFileTypes {
  return @[ @"tiff", @"png" ];
}

@end

namespace launcher {

void installImageFormats() {
  exchangeMethods(object_getClass([NSBitmapImageRep class]), @selector(imageUnfilteredFileTypes),
                  @selector(launcher_imageUnfilteredFileTypes));
  const Class others = NSClassFromString(@"GSImageMagickImageRep");
  if (others != Nil) [NSImageRep unregisterImageRepClass:others];
}

}  // namespace launcher
