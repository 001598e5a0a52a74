// The editor of a field that draws no background shows what lies behind it.

#import <AppKit/AppKit.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

@interface NSClipView (FieldEditorExchange)
@end

@implementation NSClipView (FieldEditorExchange)

- (void)launcher_setDocumentView:(NSView*)view {
  [self launcher_setDocumentView:view];
  if (![view isKindOfClass:[NSText class]]) return;
  NSText* text = static_cast<NSText*>(view);
  if (![text isFieldEditor] || [text drawsBackground]) return;
  [self setDrawsBackground:NO];
  [self setCopiesOnScroll:NO];
}

@end

namespace launcher {

void installFieldEditor() {
  exchangeMethods([NSClipView class], @selector(setDocumentView:),
                  @selector(launcher_setDocumentView:));
}

}  // namespace launcher
