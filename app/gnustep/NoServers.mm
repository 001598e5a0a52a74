// Without the toolkit's notification server. The toolkit would look for it before the window comes
// up, start it where it does not answer, and leave it behind; nothing here has other programs to
// notify.

#import <Foundation/Foundation.h>

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

namespace launcher {

void installNoServers() {
  exchangeMethods([NSDistributedNotificationCenter class], @selector(_connect),
                  @selector(launcher_doNotConnect));
}

}  // namespace launcher
