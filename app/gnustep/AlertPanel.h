#pragma once

#import <AppKit/AppKit.h>

/// An alert's window: its icon, its two texts, its buttons, the first of them at the right.
@interface AlertPanel : NSPanel {
 @private
  NSWindow* _owner;  // not retained: it outlives the alert
}

/// `owner` is the window above which the panel will stay, or nil.
- (instancetype)initWithAlert:(NSAlert*)alert owner:(NSWindow*)owner;

/// Shows the panel and blocks until a button has been pressed; returns that button's number, 0 for
/// the first one. Escape and closing the panel count as the first one.
- (NSInteger)runModal;

@end
