#import "app/mac/AppDelegate.h"

#include <csignal>

#include "app/QuitSequence.h"
#include "app/Services.h"

@implementation AppDelegate

- (instancetype)init {
  return [super init];
}

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
}

- (void)applicationWillTerminate:(NSNotification*)notification {
  launcher::quitSequence(launcher::LaunchControl::sharedInstance(),
                         *launcher::platformServices().processes, kill);
}

- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)application {
  return YES;
}

@end
