// The end of the display under the application, as when a person logs out or a window manager cuts
// a program off. The toolkit would end without a word to the delegate, and leave the viewer behind.

#import <AppKit/AppKit.h>
#include <X11/Xlib.h>

#include <cstdio>
#include <cstdlib>

#import "app/gnustep/AppKitLikeness.h"

namespace launcher {
namespace {

/// Nothing may ask the display for anything any more; background work goes on meanwhile, hence the
/// end without the runtime's tidying.
int quit(Display* /*display*/) {
  std::fputs("VorxLauncher: the display has gone\n", stderr);
  @autoreleasepool {
    [[NSApp delegate]
        applicationWillTerminate:[NSNotification
                                     notificationWithName:NSApplicationWillTerminateNotification
                                                   object:NSApp]];
  }
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

void installDisplayLoss() { XSetIOErrorHandler(quit); }

}  // namespace launcher
