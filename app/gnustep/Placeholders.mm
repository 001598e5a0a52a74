// The placeholder of an empty field, which GNUstep neither reads from a layout file nor draws.

#import <AppKit/AppKit.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

namespace {

NSString* const placeholderKey = @"placeholderString";

NSString* textOf(NSTextFieldCell* cell, NSView* view) {
  NSText* editor = [static_cast<NSControl*>(view) currentEditor];
  return editor != nil ? [editor string] : [cell stringValue];
}

}  // namespace

@interface NSTextFieldCell (PlaceholderExchange)
@end

@implementation NSTextFieldCell (PlaceholderExchange)

- (instancetype)launcher_initWithCoder:(NSCoder*)coder {
  self = [self launcher_initWithCoder:coder];
  const BOOL given = [coder allowsKeyedCoding] && [coder containsValueForKey:placeholderKey];
  if (given) [self setPlaceholderString:[coder decodeObjectForKey:placeholderKey]];
  return self;
}

- (void)launcher_drawInteriorWithFrame:(NSRect)frame inView:(NSView*)view {
  [self launcher_drawInteriorWithFrame:frame inView:view];
  NSString* placeholder = [self placeholderString];
  if (placeholder == nil || [textOf(self, view) length] > 0) return;
  [placeholder drawInRect:[self titleRectForBounds:frame]
           withAttributes:@{
             NSFontAttributeName : [self font],
             NSForegroundColorAttributeName : [NSColor disabledControlTextColor],
           }];
}

@end

namespace launcher {

void installPlaceholders() {
  exchangeMethods([NSTextFieldCell class], @selector(initWithCoder:),
                  @selector(launcher_initWithCoder:));
  exchangeMethods([NSTextFieldCell class], @selector(drawInteriorWithFrame:inView:),
                  @selector(launcher_drawInteriorWithFrame:inView:));
}

}  // namespace launcher
