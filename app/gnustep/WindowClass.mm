// The name under which window managers and panels group a program's windows, and the icon that they
// show: the program's own. The toolkit says its own name, and the icon of the program's beginning.

#import <AppKit/AppKit.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"
#import "app/gnustep/XWindows.h"

#include <span>
#include <vector>

namespace {

/// The application's icon for setIcon(); empty where it is not made of red, green, blue and
/// opacity.
std::vector<unsigned long> iconPixels() {
  NSBitmapImageRep* icon =
      [NSBitmapImageRep imageRepWithData:[[NSApp applicationIconImage] TIFFRepresentation]];
  if ([icon samplesPerPixel] != 4 || [icon bitsPerSample] != 8 || [icon isPlanar]) return {};

  const auto width = static_cast<unsigned long>([icon pixelsWide]);
  const auto height = static_cast<unsigned long>([icon pixelsHigh]);
  const auto rowLength = static_cast<unsigned long>([icon bytesPerRow]);
  std::vector<unsigned long> pixels{width, height};
  for (unsigned long y = 0; y < height; ++y) {
    const std::span row([icon bitmapData] + y * rowLength, rowLength);
    for (unsigned long x = 0; x < width; ++x) {
      const auto pixel = row.subspan(4 * x, 4);
      pixels.push_back(pixel[3] * 0x1000000UL + pixel[0] * 0x10000UL + pixel[1] * 0x100UL +
                       pixel[2]);
    }
  }
  return pixels;
}

}  // namespace

@interface GSDisplayServer (WindowClassExchange)
@end

@implementation GSDisplayServer (WindowClassExchange)

- (void)launcher_order:(int)place relativeTo:(int)other window:(int)window {
  if (place != NSWindowOut) {
    void* display = [self serverDevice];
    const auto xWindow = reinterpret_cast<launcher::XWindow>([self windowDevice:window]);
    launcher::setClass(display, xWindow, [[[NSProcessInfo processInfo] processName] UTF8String]);
    launcher::setIcon(display, xWindow, iconPixels());
  }
  [self launcher_order:place relativeTo:other window:window];
}

@end

namespace launcher {

void installWindowClass() {
  [NSApplication sharedApplication];  // connects to the display
  exchangeMethods([GSCurrentServer() class], @selector(orderwindow:::),
                  @selector(launcher_order:relativeTo:window:));
}

}  // namespace launcher
