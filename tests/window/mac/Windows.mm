#import "tests/window/mac/Windows.h"

#include "base/FatalError.h"
#import "tests/window/mac/Stage.h"

namespace launcher {
namespace {

NSWindow* newWindowBesides(NSArray* before) {
  for (NSWindow* window in [NSApp windows]) {
    const bool isLauncher = [[window contentViewController] isKindOfClass:[ViewController class]];
    if (isLauncher && ![before containsObject:window]) return window;
  }
  return nil;
}

}  // namespace

LauncherWindowOnScreen::LauncherWindowOnScreen() {
  NSArray* before = [[[NSApp windows] copy] autorelease];
  NSNib* nib = [[[NSNib alloc] initWithNibNamed:@"MainMenu" bundle:nil] autorelease];
  [nib instantiateWithOwner:NSApp topLevelObjects:&objects_];
  [objects_ retain];
  window_ = [newWindowBesides(before) retain];
  if (window_ == nil) fatalError("no window in the layout resource", "Windows", __LINE__);
  finishWork(controller());
  [NSApp activateIgnoringOtherApps:YES];
  [window_ makeKeyAndOrderFront:nil];
  // The system may keep an application inactive; it then has no key window.
  eventually([this] { return [window_ isKeyWindow] || ![NSApp isActive]; });
}

LauncherWindowOnScreen::~LauncherWindowOnScreen() {
  finishWork(controller());
  [window_ orderOut:nil];
  [window_ release];
  [objects_ release];
}

ViewController* LauncherWindowOnScreen::controller() const {
  return static_cast<ViewController*>([window_ contentViewController]);
}

void type(NSWindow* window, NSString* text) { [[window firstResponder] insertText:text]; }

void tab(NSWindow* window) { [[window firstResponder] insertTab:nil]; }

void backtab(NSWindow* window) { [[window firstResponder] insertBacktab:nil]; }

void choose(NSWindow* window, SEL action) {
  settle();
  [[window firstResponder] tryToPerform:action with:nil];
  settle();
}

}  // namespace launcher
