// Undo and redo in fields. A window has one editor for all its fields, and what it has noted of one
// text must not be done to another.

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

@interface NSTextView (UndoExchange)
@end

@implementation NSTextView (UndoExchange)

- (void)launcher_setString:(NSString*)string {
  [self launcher_setString:string];
  if ([self isFieldEditor]) [[self undoManager] removeAllActions];
}

@end

namespace launcher {

void installUndo() {
  exchangeMethods([NSTextFieldCell class], @selector(allowsUndo), @selector(launcher_allowsUndo));
  exchangeMethods([NSTextView class], @selector(setString:), @selector(launcher_setString:));
}

}  // namespace launcher
