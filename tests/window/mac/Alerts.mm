#import "tests/window/mac/Alerts.h"

#include <utility>

#import "base/mac/Conversions.h"
#import "tests/window/mac/Stage.h"

@implementation DuringAlert

/// Waits on another thread, which then wakes the alert's loop as an event does.
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

/// Waits again while the alert is still coming up: it takes no keys yet.
- (void)act {
  const bool isUp = [[NSApp modalWindow] isVisible];
  if (!isUp) return [NSThread detachNewThreadSelector:@selector(wait) toTarget:self withObject:nil];
  _action();
}

@end

namespace launcher {
namespace {

using Texts = std::vector<std::string>;

/// The views of a kind that are shown, however deep the toolkit nests them.
void addShown(NSView* view, Class kind, NSMutableArray* shown) {
  if ([view isHidden]) return;
  if ([view isKindOfClass:kind]) [shown addObject:view];
  for (NSView* part in [view subviews]) addShown(part, kind, shown);
}

NSArray* shownInAlert(Class kind) {
  NSMutableArray* shown = [NSMutableArray array];
  addShown([[NSApp modalWindow] contentView], kind, shown);
  return shown;
}

}  // namespace

Texts alertTexts() {
  Texts texts = alertButtons();
  for (NSTextField* field in shownInAlert([NSTextField class])) texts.push_back(textOf(field));
  return texts;
}

Texts alertButtons() {
  Texts titles;
  for (NSButton* button in shownInAlert([NSButton class])) {
    const bool isIcon = [button action] == nullptr;
    if (!isIcon) titles.push_back(toStdString([button title]));
  }
  return titles;
}

/// A slow machine may lose the key while the alert is still coming up. So press it again if the
/// same alert is still there after a while.
void pressReturn() {
  const NSInteger number = [[NSApp modalWindow] windowNumber];
  pressReturnIn([NSApp modalWindow]);
  [DuringAlert after:2
                  do:[number] {
                    if ([[NSApp modalWindow] windowNumber] == number) pressReturn();
                  }];
}

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
