#import "tests/window/Windows.h"

#import "tests/window/Stage.h"

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
  [NSBundle loadNibNamed:@"MainMenu" owner:NSApp];
  window_ = [newWindowBesides(before) retain];
  finishWork(controller());
  [window_ makeKeyAndOrderFront:nil];
  eventually([this] { return [window_ isKeyWindow]; });
}

LauncherWindowOnScreen::~LauncherWindowOnScreen() {
  finishWork(controller());
  [window_ orderOut:nil];
  [window_ release];
}

ViewController* LauncherWindowOnScreen::controller() const {
  return static_cast<ViewController*>([window_ contentViewController]);
}

void type(NSWindow* window, NSString* text) {
  [static_cast<NSTextView*>([window firstResponder]) insertText:text];
}

void tab(NSWindow* window) { [static_cast<NSTextView*>([window firstResponder]) insertTab:nil]; }

void backtab(NSWindow* window) {
  [static_cast<NSTextView*>([window firstResponder]) insertBacktab:nil];
}

}  // namespace launcher
