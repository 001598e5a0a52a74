// The placeholder that a layout file gives a field, which GNUstep draws but does not read.

#import <AppKit/AppKit.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

namespace {

NSString* const placeholderKey = @"placeholderString";

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

@end

namespace launcher {

void installPlaceholders() {
  exchangeMethods([NSTextFieldCell class], @selector(initWithCoder:),
                  @selector(launcher_initWithCoder:));
}

}  // namespace launcher
