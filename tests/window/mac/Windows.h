#pragma once

#import <AppKit/AppKit.h>

#import "controller/mac/ViewController.h"

namespace launcher {

/// The application's window from its layout resource, shown for as long as this lives.
class LauncherWindowOnScreen {
 public:
  LauncherWindowOnScreen();
  ~LauncherWindowOnScreen();
  LauncherWindowOnScreen(const LauncherWindowOnScreen&) = delete;
  LauncherWindowOnScreen& operator=(const LauncherWindowOnScreen&) = delete;

  NSWindow* window() const { return window_; }
  ViewController* controller() const;

 private:
  NSArray* objects_ = nil;  // the layout resource's other objects
  NSWindow* window_ = nil;
};

/// Types into whatever is being edited, as the keyboard does.
void type(NSWindow* window, NSString* text);
void tab(NSWindow* window);
void backtab(NSWindow* window);

/// Does what a menu's item does, to whatever is being edited or to what that lies in.
void choose(NSWindow* window, SEL action);

}  // namespace launcher
