// The ring around the field that is being edited.

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSTheme.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

@interface NSTextField (FocusRingExchange)
@end

@implementation NSTextField (FocusRingExchange)

- (void)launcher_ringedDrawRect:(NSRect)rect {
  [self launcher_ringedDrawRect:rect];
  const bool ringed = [self isEditable] && [self currentEditor] != nil;
  if (ringed) [[GSTheme theme] drawFocusFrame:[self bounds] view:self];
}

- (BOOL)launcher_becomeFirstResponder {
  [self setNeedsDisplay:YES];
  return [self launcher_becomeFirstResponder];
}

- (void)launcher_textDidEndEditing:(NSNotification*)notification {
  [self launcher_textDidEndEditing:notification];
  [self setNeedsDisplay:YES];
}

@end

namespace launcher {

void installFocusRing() {
  const Class field = [NSTextField class];
  exchangeMethods(field, @selector(drawRect:), @selector(launcher_ringedDrawRect:));
  exchangeMethods(field, @selector(becomeFirstResponder), @selector(launcher_becomeFirstResponder));
  exchangeMethods(field, @selector(textDidEndEditing:), @selector(launcher_textDidEndEditing:));
}

}  // namespace launcher
