// The image formats that the toolkit knows by itself, which are those of the icon and of its own
// images. For all others it loads a library with its hundred parts, before the first window, and
// looks for every image under each of their names.

#import <AppKit/AppKit.h>

#import "app/gnustep/AppKitLikeness.h"

namespace launcher {

void installImageFormats() {
  const Class others = NSClassFromString(@"GSImageMagickImageRep");
  if (others != Nil) [NSImageRep unregisterImageRepClass:others];
}

}  // namespace launcher
