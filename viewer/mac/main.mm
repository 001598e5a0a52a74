// A sample viewer, which stands in for the remote-control viewer. It prints and shows the
// launcher's arguments. It ends on SIGTERM or when its window closes.

#import <AppKit/AppKit.h>

#include <cstdio>
#include <string>

#include "viewer/Arguments.h"

namespace {

NSString* textOf(const std::string& bytes) {
  NSString* text = [NSString stringWithUTF8String:bytes.c_str()];
  return text != nil ? text : @"(not readable as text)";
}

/// The launcher's icon; nil if there is none.
NSImage* iconIn(const std::string& folder) {
  NSString* file = textOf(folder + "/VorxLauncher.icns");
  return [[[NSImage alloc] initWithContentsOfFile:file] autorelease];
}

/// Shows the launcher's icon and the arguments until the window is closed.
void show(const viewer::Arguments& arguments) {
  NSApplication* application = [NSApplication sharedApplication];
  // A program outside a bundle gets no Dock icon unless it asks for one.
  [application setActivationPolicy:NSApplicationActivationPolicyRegular];
  [application setApplicationIconImage:iconIn(arguments.resourceFolder)];

  NSAlert* alert = [[[NSAlert alloc] init] autorelease];
  [alert setMessageText:@"Sample Viewer"];
  [alert setInformativeText:textOf(viewer::message(arguments))];
  // A modal window would otherwise keep the person from logging out.
  [[alert window] setPreventsApplicationTerminationWhenModal:NO];
  [application activateIgnoringOtherApps:YES];
  [alert runModal];
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

  @autoreleasepool {
    show(*arguments);
  }
  return 0;
}
