// Undo in fields, which AppKit allows unless told otherwise.

#import <AppKit/AppKit.h>

#import "tests/gnustep/Methods.h"
#import "tests/gnustep/StandIn.h"

@interface NSTextFieldCell (UndoExchange)
@end

@implementation NSTextFieldCell (UndoExchange)

- (BOOL)launcher_allowsUndo {
  return YES;
}

@end

namespace launcher {

void installUndo() {
  exchangeMethods([NSTextFieldCell class], @selector(allowsUndo), @selector(launcher_allowsUndo));
}

}  // namespace launcher
