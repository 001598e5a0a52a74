// The editor of a field that draws no background shows what lies behind it, also where its
// insertion point was.

#import <AppKit/AppKit.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

@interface NSClipView (FieldEditorExchange)
@end

@implementation NSClipView (FieldEditorExchange)

- (void)launcher_setDocumentView:(NSView*)view {
  [self launcher_setDocumentView:view];
  if (![view isKindOfClass:[NSText class]]) return;
  auto* text = static_cast<NSText*>(view);
  if (![text isFieldEditor] || [text drawsBackground]) return;
  [self setDrawsBackground:NO];
  [self setCopiesOnScroll:NO];
}

@end

@interface NSTextView (FieldEditorExchange)
@end

@implementation NSTextView (FieldEditorExchange)

- (void)launcher_drawInsertionPointInRect:(NSRect)rect color:(NSColor*)color turnedOn:(BOOL)on {
  if (on || [self drawsBackground]) {
    return [self launcher_drawInsertionPointInRect:rect color:color turnedOn:on];
  }
  [self setNeedsDisplayInRect:NSInsetRect(rect, -1, -1)];
}

@end

namespace launcher {

void installFieldEditor() {
  exchangeMethods([NSClipView class], @selector(setDocumentView:),
                  @selector(launcher_setDocumentView:));
  exchangeMethods([NSTextView class], @selector(drawInsertionPointInRect:color:turnedOn:),
                  @selector(launcher_drawInsertionPointInRect:color:turnedOn:));
}

}  // namespace launcher
