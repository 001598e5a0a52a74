// The moments at which AppKit tells a view controller about its view.

#import "tests/gnustep/StandIn.h"

#import <AppKit/AppKit.h>

#import "tests/gnustep/Methods.h"

namespace {

/// The controllers by the windows that retain them; main thread only.
NSMapTable* contentViewControllers() {
  static NSMapTable* const controllers =
      NSCreateMapTable(NSNonRetainedObjectMapKeyCallBacks, NSObjectMapValueCallBacks, 1);
  return controllers;
}

}  // namespace

@interface LifecycleOfController : NSViewController
@end

@implementation LifecycleOfController

- (void)viewDidLoad {
}

- (void)viewWillAppear {
}

@end

@interface LifecycleOfWindow : NSWindow
@end

@implementation LifecycleOfWindow

- (NSViewController*)contentViewController {
  return static_cast<NSViewController*>(NSMapGet(contentViewControllers(), self));
}

/// The window's content takes the size of the controller's view.
- (void)setContentViewController:(NSViewController*)controller {
  NSMapInsert(contentViewControllers(), self, controller);
  NSView* view = [controller view];
  [self setContentSize:[view frame].size];
  [self setContentView:view];
}

@end

@interface NSViewController (LifecycleExchange)
@end

@implementation NSViewController (LifecycleExchange)

/// A controller without a nib name looks for the nib named after its class.
- (NSString*)launcher_nibName {
  NSString* name = [self launcher_nibName];
  return name != nil ? name : NSStringFromClass([self class]);
}

- (void)launcher_loadView {
  [self launcher_loadView];
  [self viewDidLoad];
}

@end

@interface NSWindow (LifecycleExchange)
@end

@implementation NSWindow (LifecycleExchange)

- (void)launcher_orderWindow:(NSWindowOrderingMode)place relativeTo:(NSInteger)other {
  const BOOL appears = place != NSWindowOut && ![self isVisible];
  if (appears) [[self contentViewController] viewWillAppear];
  [self launcher_orderWindow:place relativeTo:other];
}

- (void)launcher_dealloc {
  NSMapRemove(contentViewControllers(), self);
  [self launcher_dealloc];
}

@end

namespace launcher {

void installViewLifecycle() {
  const bool known = [NSViewController instancesRespondToSelector:@selector(viewDidLoad)];
  addMissingMethods([NSViewController class], [LifecycleOfController class]);
  addMissingMethods([NSWindow class], [LifecycleOfWindow class]);
  if (known) return;
  exchangeMethods([NSViewController class], @selector(nibName), @selector(launcher_nibName));
  exchangeMethods([NSViewController class], @selector(loadView), @selector(launcher_loadView));
  exchangeMethods([NSWindow class], @selector(orderWindow:relativeTo:),
                  @selector(launcher_orderWindow:relativeTo:));
  exchangeMethods([NSWindow class], @selector(dealloc), @selector(launcher_dealloc));
}

}  // namespace launcher
