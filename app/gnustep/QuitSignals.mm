// Ctrl-C and the session's request to end, which quit in order. The toolkit quits inside its
// handler, wherever the signal has come: in the middle of a talk with the display it waits for
// itself, for ever. Here the signals are held back, and the run loop reads them like any other
// event.

#import <AppKit/AppKit.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>

#import "app/gnustep/AppKitLikeness.h"

/// Quits the application once a signal can be read.
@interface QuitSignals : NSObject <RunLoopEvents>
@end

@implementation QuitSignals

- (void)receivedEvent:(void*)data
                 type:(RunLoopEventType)type
                extra:(void*)extra
              forMode:(NSString*)mode {
  signalfd_siginfo taken;
  if (read(static_cast<int>(reinterpret_cast<std::intptr_t>(extra)), &taken, sizeof(taken)) > 0) {
    [NSApp terminate:nil];
  }
}

@end

namespace launcher {

void installQuitSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGINT);
  sigaddset(&signals, SIGTERM);
  const int descriptor = signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
  if (descriptor == -1) return;
  // Threads that are made later hold them back, too.
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);

  QuitSignals* watcher = [[QuitSignals alloc] init];  // stays for the life of the program
  for (NSString* mode in
       @[ NSDefaultRunLoopMode, NSModalPanelRunLoopMode, NSEventTrackingRunLoopMode ]) {
    [[NSRunLoop currentRunLoop] addEvent:reinterpret_cast<void*>(std::intptr_t{descriptor})
                                    type:ET_RDESC
                                 watcher:watcher
                                 forMode:mode];
  }
}

}  // namespace launcher
