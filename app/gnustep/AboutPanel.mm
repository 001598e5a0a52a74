// What "About" shows: the icon, the name and the version, as an alert. The toolkit's own panel
// speaks of the toolkit, and comes up behind the window.

#import <AppKit/AppKit.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

@interface NSApplication (AboutExchange)
@end

@implementation NSApplication (AboutExchange)

- (void)launcher_orderFrontStandardAboutPanel:(id)sender {
  NSBundle* bundle = [NSBundle mainBundle];
  NSAlert* alert = [[NSAlert alloc] init];
  [alert setMessageText:[[self mainWindow] title]];
  [alert setInformativeText:[bundle objectForInfoDictionaryKey:@"ApplicationRelease"]];
  [alert addButtonWithTitle:[bundle localizedStringForKey:@"OK" value:@"" table:nil]];
  [alert runModal];
  [alert release];
}

@end

namespace launcher {

void installAboutPanel() {
  exchangeMethods([NSApplication class], @selector(orderFrontStandardAboutPanel:),
                  @selector(launcher_orderFrontStandardAboutPanel:));
}

}  // namespace launcher
