#pragma once

#import <AppKit/AppKit.h>

/// The cell of a text that stands in the middle of its height, however many lines it has. Used by
/// the layout resource.
@interface StatusCell : NSTextFieldCell
@end
