// Undo and redo in fields, which AppKit's fields allow where nothing else is said.

#import <AppKit/AppKit.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

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
