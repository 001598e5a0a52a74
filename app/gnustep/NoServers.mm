// Without the toolkit's servers. Before the window is painted the toolkit would look for the one
// that hands notifications on, start it where it does not answer, and leave it behind; and it would
// make the application one that others can send files and texts to. Nothing here has other programs
// to notify, nor takes anything from them.

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSServicesManager.h>

#include "app/gnustep/AppKitLikeness.h"
#include "app/gnustep/Methods.h"

@interface NSDistributedNotificationCenter (Server)
- (void)_connect;
@end

@interface NSDistributedNotificationCenter (ServerExchange)
@end

@implementation NSDistributedNotificationCenter (ServerExchange)

- (void)launcher_doNotConnect {
}

@end

@interface GSServicesManager (ServerExchange)
@end

@implementation GSServicesManager (ServerExchange)

- (void)launcher_doNotRegister {
}

@end

namespace launcher {

void installNoServers() {
  exchangeMethods([GSServicesManager class], @selector(registerAsServiceProvider),
                  @selector(launcher_doNotRegister));
  exchangeMethods([NSDistributedNotificationCenter class], @selector(_connect),
                  @selector(launcher_doNotConnect));
}

}  // namespace launcher
