// What GNUstep does not read from a layout file: a field's placeholder and the limits of a window's
// content, which it takes for limits of the whole window.

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSNibLoading.h>

#import "tests/gnustep/Methods.h"
#import "tests/gnustep/StandIn.h"

@interface NSTextFieldCell (LayoutReading)
@end

@implementation NSTextFieldCell (LayoutReading)

- (instancetype)launcher_initWithCoder:(NSCoder*)coder {
  self = [self launcher_initWithCoder:coder];
  if (![coder allowsKeyedCoding] || ![coder containsValueForKey:@"placeholderString"]) return self;
  [self setPlaceholderString:[coder decodeObjectForKey:@"placeholderString"]];
  return self;
}

@end

@interface NSWindowTemplate (LayoutReading)
@end

@implementation NSWindowTemplate (LayoutReading)

- (instancetype)launcher_initWithCoder:(NSCoder*)coder {
  self = [self launcher_initWithCoder:coder];
  if (![coder allowsKeyedCoding]) return self;
  if ([coder containsValueForKey:@"minSize"]) [self setMinSize:[coder decodeSizeForKey:@"minSize"]];
  if ([coder containsValueForKey:@"maxSize"]) [self setMaxSize:[coder decodeSizeForKey:@"maxSize"]];
  return self;
}

@end

namespace launcher {

void installLayoutReading() {
  exchangeMethods([NSTextFieldCell class], @selector(initWithCoder:),
                  @selector(launcher_initWithCoder:));
  exchangeMethods([NSWindowTemplate class], @selector(initWithCoder:),
                  @selector(launcher_initWithCoder:));
}

}  // namespace launcher
