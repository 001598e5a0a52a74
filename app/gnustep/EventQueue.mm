// The queue of events, looked through as a whole and again and again. The toolkit goes on where it
// stopped before it waited, and waits until something comes: an event that has taken the place of
// another one meanwhile, or was read while something was drawn, it does not see. A quick click on a
// busy machine left the button pressed for ever.

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>

#import "app/gnustep/AppKitLikeness.h"
#import "app/gnustep/Methods.h"

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
