// Copy and paste in text views by the desktop's clipboard.

#import <AppKit/AppKit.h>

#include "app/gnustep/AppKitLikeness.h"
#include "app/gnustep/Clipboard.h"
#include "app/gnustep/Methods.h"

using launcher::Selection;

namespace {

void offerSelectionOf(NSTextView* view, Selection selection) {
  const NSRange range = [view selectedRange];
  if (range.length == 0) return;
  launcher::offerText(selection, [[[view string] substringWithRange:range] UTF8String]);
}

/// A field is one line: its editor leaves out what would begin another.
NSString* inOneLine(NSString* text) {
  NSArray* lines = [text componentsSeparatedByCharactersInSet:[NSCharacterSet newlineCharacterSet]];
  return [lines componentsJoinedByString:@""];
}

void insertInto(NSTextView* view, Selection selection) {
  const auto offered = launcher::offeredText(selection);
  NSString* text = offered ? [NSString stringWithUTF8String:offered->c_str()] : nil;
  if (text == nil || ![view isEditable]) return;
  [view insertText:[view isFieldEditor] ? inOneLine(text) : text];
}

}  // namespace

@interface NSTextView (Selection)
- (void)copySelection;
- (void)pasteSelection;
@end

@interface NSTextView (ClipboardExchange)
@end

@implementation NSTextView (ClipboardExchange)

- (void)launcher_copy:(id)sender {
  offerSelectionOf(self, Selection::clipboard);
}

- (void)launcher_copySelection {
  offerSelectionOf(self, Selection::primary);
}

- (void)launcher_paste:(id)sender {
  insertInto(self, Selection::clipboard);
}

- (void)launcher_pasteSelection {
  insertInto(self, Selection::primary);
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
  exchangeMethods([NSTextView class], @selector(copySelection), @selector(launcher_copySelection));
  exchangeMethods([NSTextView class], @selector(pasteSelection),
                  @selector(launcher_pasteSelection));
  exchangeMethods([NSTextView class], @selector(validateUserInterfaceItem:),
                  @selector(launcher_validateUserInterfaceItem:));
}

}  // namespace launcher
