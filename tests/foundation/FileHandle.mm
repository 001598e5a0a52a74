#import <Foundation/Foundation.h>

#include <Block.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <thread>
#include <utility>

#import "tests/foundation/Threads.h"

namespace {

using Handler = void (^)(StandInFileHandle* handle);

/// Calls the handler whenever there is something to read, and again and again at the end. Holds the
/// handle and the handler until it is told to stop.
void watch(StandInFileHandle* handle, int descriptor, int stop, Handler handler) {
  std::array<pollfd, 2> events{{{descriptor, POLLIN, 0}, {stop, POLLIN, 0}}};
  while (poll(events.data(), events.size(), -1) > 0 && events[1].revents == 0) {
    @autoreleasepool {
      handler(handle);
    }
  }
  close(stop);
  Block_release(handler);
  [handle release];
}

}  // namespace

@implementation StandInFileHandle

- (id)initWithDescriptor:(int)descriptor {
  self = [super init];
  _descriptor = descriptor;
  _stop = -1;
  return self;
}

- (void)dealloc {
  close(_descriptor);
  [super dealloc];
}

- (NSData*)availableData {
  std::array<char, 65536> buffer{};
  const ssize_t size = read(_descriptor, buffer.data(), buffer.size());
  if (size < 0) [NSException raise:@"NSFileHandleOperationException" format:@"unreadable"];
  return [NSData dataWithBytes:buffer.data() length:static_cast<NSUInteger>(size)];
}

- (void)setReadabilityHandler:(void (^)(StandInFileHandle* handle))handler {
  @synchronized(self) {
    if (_stop != -1) eventfd_write(std::exchange(_stop, -1), 1);
    if (handler == nil) return;
    _stop = eventfd(0, EFD_CLOEXEC);
    const Handler held = Block_copy(handler);
    std::thread([handle = [self retain], descriptor = _descriptor, stop = _stop, held] {
      launcher::onForeignThread([&] { watch(handle, descriptor, stop, held); });
    }).detach();
  }
}

@end

@implementation StandInPipe

+ (StandInPipe*)pipe {
  return [[[StandInPipe alloc] init] autorelease];
}

- (id)init {
  self = [super init];
  std::array<int, 2> ends{-1, -1};
  if (pipe2(ends.data(), O_CLOEXEC) == -1) return nil;
  _reading = [[StandInFileHandle alloc] initWithDescriptor:ends[0]];
  _writer = ends[1];
  return self;
}

- (void)dealloc {
  [self closeWriter];
  [_reading release];
  [super dealloc];
}

- (StandInFileHandle*)fileHandleForReading {
  return _reading;
}

- (int)writer {
  return _writer;
}

- (void)closeWriter {
  if (_writer != -1) close(std::exchange(_writer, -1));
}

@end
