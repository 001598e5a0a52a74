// Keys pressed with the command key, which is Ctrl here, type nothing. The toolkit would put the
// control character into the text, where nobody sees it.

#import <AppKit/AppKit.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

namespace {

/// Whether the key alone would type something; those that move or delete do not.
bool types(NSString* characters) {
  if ([characters length] == 0) return false;
  const unichar key = [characters characterAtIndex:0];
  return key > 0x1f && key != NSDeleteCharacter && (key < 0xf700 || key > 0xf8ff);
}

}  // namespace

@interface NSTextView (CommandKeysExchange)
@end

@implementation NSTextView (CommandKeysExchange)

- (void)launcher_keyDown:(NSEvent*)event {
  const bool isCommand = ([event modifierFlags] & NSCommandKeyMask) != 0;
  if (isCommand && types([event charactersIgnoringModifiers])) return;
  [self launcher_keyDown:event];
}

@end

namespace launcher {

void installCommandKeys() {
  exchangeMethods([NSTextView class], @selector(keyDown:), @selector(launcher_keyDown:));
}

}  // namespace launcher
