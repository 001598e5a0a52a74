#pragma once

#import <AppKit/AppKit.h>

#include <functional>
#include <string>
#include <vector>

/// Runs an action while an alert is up.
@interface DuringAlert : NSObject {
  std::function<void()> _action;
  NSTimeInterval _delay;
}

/// Runs the action on the main thread, once an alert is up and these seconds have passed.
+ (void)after:(NSTimeInterval)seconds do:(std::function<void()>)action;

@end

namespace launcher {

/// The texts that the alert shows, and its buttons' titles.
std::vector<std::string> alertTexts();
std::vector<std::string> alertButtons();

/// Presses Return as a person does: in the alert, or in a window.
void pressReturn();
void pressReturnIn(NSWindow* window);

}  // namespace launcher
