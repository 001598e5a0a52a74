// Ctrl-C and the session's request to end, which quit in order. The toolkit quits inside its
// handler, wherever the signal has come: in the middle of a talk with the display it waits for
// itself, for ever. Here the signals are held back, and the run loop reads them like any other
// event.

#import <AppKit/AppKit.h>
#include <sys/signalfd.h>

#include <csignal>

#import "app/gnustep/AppKitLikeness.h"

/// Quits the application as soon as a signal can be read.
@interface QuitSignals : NSObject
@end

@implementation QuitSignals

+ (void)signalCame:(NSNotification*)notification {
  [NSApp terminate:nil];
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

  static NSFileHandle* const incoming = [[NSFileHandle alloc] initWithFileDescriptor:descriptor];
  [[NSNotificationCenter defaultCenter] addObserver:[QuitSignals class]
                                           selector:@selector(signalCame:)
                                               name:NSFileHandleDataAvailableNotification
                                             object:incoming];
  [incoming waitForDataInBackgroundAndNotifyForModes:@[
    NSDefaultRunLoopMode, NSModalPanelRunLoopMode, NSEventTrackingRunLoopMode
  ]];
}

}  // namespace launcher
