// Searches the queue of events from its beginning after each wait. GNUstep goes on where it stopped
// before the wait and misses an event that was posted meanwhile.

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>

#import "tests/gnustep/Methods.h"
#import "tests/gnustep/StandIn.h"

namespace {

NSEvent* firstEvent(NSArray* queue, unsigned mask) {
  for (NSEvent* event in queue) {
    if ((mask & NSEventMaskFromType([event type])) != 0) return event;
  }
  return nil;
}

/// Lets the run loop handle what comes. False where nothing can come.
bool waitForEvents(NSTimeInterval most, NSDate* limit, NSString* mode) {
  @autoreleasepool {
    NSDate* soon = [NSDate dateWithTimeIntervalSinceNow:most];
    return [[NSRunLoop currentRunLoop] runMode:mode beforeDate:[soon earlierDate:limit]];
  }
}

}  // namespace

@interface GSDisplayServer (EventQueueExchange)
@end

@implementation GSDisplayServer (EventQueueExchange)

- (NSEvent*)launcher_getEventMatchingMask:(unsigned)mask
                               beforeDate:(NSDate*)limit
                                   inMode:(NSString*)mode
                                  dequeue:(BOOL)dequeue {
  constexpr NSTimeInterval secondsPerWait = 0.5;
  NSEvent* event = firstEvent(event_queue, mask);
  bool goesOn = event == nil && waitForEvents(0, limit, mode);
  while ((event = firstEvent(event_queue, mask)) == nil && goesOn) {
    goesOn = [limit timeIntervalSinceNow] > 0 && waitForEvents(secondsPerWait, limit, mode);
  }
  [[event retain] autorelease];
  if (event != nil && dequeue) [event_queue removeObjectIdenticalTo:event];
  return event;
}

@end

namespace launcher {

void installEventQueue() {
  exchangeMethods([GSDisplayServer class],
                  @selector(getEventMatchingMask:beforeDate:inMode:dequeue:),
                  @selector(launcher_getEventMatchingMask:beforeDate:inMode:dequeue:));
}

}  // namespace launcher
