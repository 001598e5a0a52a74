#pragma once

#import <AppKit/AppKit.h>

/// The cell of a text that is centred vertically, with any number of lines. The layout resource
/// uses it.
@interface StatusCell : NSTextFieldCell
@end
