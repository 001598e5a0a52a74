// The limits that a layout file sets to a window's size are those of its content. GNUstep takes
// them for the whole window's, borders included.

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSNibLoading.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

@interface NSWindowTemplate (LimitsExchange)
@end

@implementation NSWindowTemplate (LimitsExchange)

- (instancetype)launcher_initWithCoder:(NSCoder*)coder {
  self = [self launcher_initWithCoder:coder];
  if (![coder allowsKeyedCoding]) return self;
  if ([coder containsValueForKey:@"minSize"]) [self setMinSize:[coder decodeSizeForKey:@"minSize"]];
  if ([coder containsValueForKey:@"maxSize"]) [self setMaxSize:[coder decodeSizeForKey:@"maxSize"]];
  return self;
}

@end

namespace launcher {

void installWindowLimits() {
  exchangeMethods([NSWindowTemplate class], @selector(initWithCoder:),
                  @selector(launcher_initWithCoder:));
}

}  // namespace launcher
