#pragma once

#import <AppKit/AppKit.h>

namespace launcher {

/// Ends the editing of whatever has the focus in a window, and keeps its text. Nothing has the
/// focus afterwards.
void takeFocus(NSWindow* window);

/// Gives the focus of the field's window to the field, with the selection that it had, where
/// nothing else has it.
void returnFocus(NSTextField* field);

}  // namespace launcher
