#pragma once

#import <AppKit/AppKit.h>

namespace launcher {

/// Ends editing in a window and keeps the edited text. No control has the focus afterwards.
void takeFocus(NSWindow* window);

/// Gives the field the focus and its last selection, unless another control of the window has the
/// focus.
void returnFocus(NSTextField* field);

}  // namespace launcher
