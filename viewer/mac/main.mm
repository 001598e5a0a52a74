// A sample viewer, which stands in for the remote-control viewer. It prints and shows the
// launcher's arguments. It ends on SIGTERM or when its window closes.

#import <AppKit/AppKit.h>

#include <cstdio>
#include <string>

#include "viewer/Arguments.h"
#import "viewer/mac/SampleWindow.h"

namespace {

/// Shows the launcher's icon, if there is one.
void takeIcon(NSApplication* application, const viewer::Arguments& arguments) {
  const std::string path = arguments.resourceFolder + "/VorxLauncher.icns";
  NSString* file = [NSString stringWithUTF8String:path.c_str()];
  NSImage* icon = file != nil ? [[[NSImage alloc] initWithContentsOfFile:file] autorelease] : nil;
  if (icon != nil) [application setApplicationIconImage:icon];
}

void showWindow(const viewer::Arguments& arguments) {
  @autoreleasepool {
    NSApplication* application = [NSApplication sharedApplication];
    // A program outside a bundle gets no Dock icon and no menu unless it asks for them.
    [application setActivationPolicy:NSApplicationActivationPolicyRegular];
    takeIcon(application, arguments);
    SampleWindow* window = [[[SampleWindow alloc] initWithArguments:arguments] autorelease];
    [application setDelegate:window];
    [window show];
    [application activateIgnoringOtherApps:YES];
    [application run];
  }
}

}  // namespace

int main(int argc, char** argv) {
  const auto arguments = viewer::parseArguments(argc, argv);
  if (!arguments) {
    std::fprintf(stderr, "usage: %s %s\n", argv[0], viewer::kUsage);
    return 2;
  }

  std::puts(viewer::description(*arguments).c_str());
  std::fflush(stdout);
  showWindow(*arguments);
  return 0;
}
