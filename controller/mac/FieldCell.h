#pragma once

#import <AppKit/AppKit.h>

/// The cell of a field with a border of its own: one line of text that keeps clear of the border
/// and stands in the middle of the field's height. Used by the layout resource.
@interface FieldCell : NSTextFieldCell {
 @private
  NSRange _lastSelection;
}

/// What was selected when the field was last edited; nothing before that.
- (NSRange)lastSelection;

@end
