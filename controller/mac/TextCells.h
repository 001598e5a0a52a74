#pragma once

#import <AppKit/AppKit.h>

/// The cell of a field that draws its own border: one line of text, clear of the border and centred
/// vertically. The layout resource uses it.
@interface FieldCell : NSTextFieldCell {
 @private
  NSRange _lastSelection;
}

/// The selection when the field was last edited; empty before that.
- (NSRange)lastSelection;

@end

/// The cell of a text that is centred vertically, with any number of lines. The layout resource
/// uses it.
@interface StatusCell : NSTextFieldCell
@end
