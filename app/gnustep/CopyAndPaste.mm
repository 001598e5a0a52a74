// Copy and paste in text views by the desktop's clipboard.

#import <AppKit/AppKit.h>

#include "app/gnustep/AppKitLikeness.h"
#include "app/gnustep/Clipboard.h"
#include "app/gnustep/Methods.h"

namespace {

/// A field is one line: its editor leaves out what would begin another.
NSString* inOneLine(NSString* text) {
  NSArray* lines = [text componentsSeparatedByCharactersInSet:[NSCharacterSet newlineCharacterSet]];
  return [lines componentsJoinedByString:@""];
}

}  // namespace

@interface NSTextView (ClipboardExchange)
@end

@implementation NSTextView (ClipboardExchange)

- (void)launcher_copy:(id)sender {
  const NSRange selection = [self selectedRange];
  if (selection.length == 0) return;
  launcher::offerToClipboard([[[self string] substringWithRange:selection] UTF8String]);
}

- (void)launcher_paste:(id)sender {
  const auto bytes = launcher::textOnClipboard();
  NSString* text = bytes ? [NSString stringWithUTF8String:bytes->c_str()] : nil;
  if (text == nil || ![self isEditable]) return;
  [self insertText:[self isFieldEditor] ? inOneLine(text) : text];
}

/// Looking whether there is something to paste would ask another program each time.
- (BOOL)launcher_validateUserInterfaceItem:(id<NSValidatedUserInterfaceItem>)item {
  if (sel_isEqual([item action], @selector(paste:))) return [self isEditable];
  return [self launcher_validateUserInterfaceItem:item];
}

@end

namespace launcher {

void installCopyAndPaste() {
  exchangeMethods([NSTextView class], @selector(copy:), @selector(launcher_copy:));
  exchangeMethods([NSTextView class], @selector(paste:), @selector(launcher_paste:));
  exchangeMethods([NSTextView class], @selector(validateUserInterfaceItem:),
                  @selector(launcher_validateUserInterfaceItem:));
}

}  // namespace launcher
