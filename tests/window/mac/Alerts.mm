#import "tests/window/mac/Alerts.h"

#include <utility>

#import "base/mac/Conversions.h"
#import "tests/window/mac/Stage.h"

@implementation DuringAlert

/// From another thread, which wakes the alert's loop up as an event does.
+ (void)after:(NSTimeInterval)seconds do:(std::function<void()>)action {
  DuringAlert* during = [[[DuringAlert alloc] init] autorelease];
  during->_action = std::move(action);
  during->_delay = seconds;
  [NSThread detachNewThreadSelector:@selector(wait) toTarget:during withObject:nil];
}

- (void)wait {
  @autoreleasepool {
    [NSThread sleepForTimeInterval:_delay];
    [self performSelectorOnMainThread:@selector(act)
                           withObject:nil
                        waitUntilDone:NO
                                modes:@[ NSModalPanelRunLoopMode ]];
  }
}

- (void)act {
  _action();
}

@end

namespace launcher {
namespace {

using Texts = std::vector<std::string>;

/// However deep the toolkit puts them.
void addTexts(NSView* view, Texts& texts) {
  if ([view isHidden]) return;
  if ([view isKindOfClass:[NSTextField class]]) {
    texts.push_back(textOf(static_cast<NSTextField*>(view)));
  } else if ([view isKindOfClass:[NSButton class]]) {
    texts.push_back(toStdString([static_cast<NSButton*>(view) title]));
  }
  for (NSView* part in [view subviews]) addTexts(part, texts);
}

}  // namespace

Texts alertTexts() {
  Texts texts;
  addTexts([[NSApp modalWindow] contentView], texts);
  return texts;
}

void pressReturn() { pressReturnIn([NSApp modalWindow]); }

void pressReturnIn(NSWindow* window) {
  NSEvent* event = [NSEvent keyEventWithType:NSEventTypeKeyDown
                                    location:NSZeroPoint
                               modifierFlags:0
                                   timestamp:0
                                windowNumber:[window windowNumber]
                                     context:nil
                                  characters:@"\r"
                 charactersIgnoringModifiers:@"\r"
                                   isARepeat:NO
                                     keyCode:36];
  [NSApp postEvent:event atStart:NO];
}

}  // namespace launcher
