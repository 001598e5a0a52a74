#import "app/mac/AppDelegate.h"

#include <csignal>

#include "app/QuitSequence.h"
#include "controller/LauncherController.h"

@implementation AppDelegate

- (instancetype)init {
  return [super init];
}

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
}

- (void)applicationWillTerminate:(NSNotification*)notification {
  launcher::quitSequence(launcher::LaunchControl::sharedInstance(),
                         launcher::controllerServices().processes, kill);
}

- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)application {
  return YES;
}

@end
