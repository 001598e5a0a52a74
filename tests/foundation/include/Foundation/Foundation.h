#pragma once

// GNUstep's Foundation with the child processes of macOS's: its own tell nobody of output and end
// as they come, and change the whole process. These hold no more than they must, so that a use
// after the end is seen.

#include_next <Foundation/Foundation.h>

@interface StandInFileHandle : NSObject {
 @private
  int _descriptor;
  int _stop;
}
- (NSData*)availableData;
- (void)setReadabilityHandler:(void (^)(StandInFileHandle* handle))handler;
@end

@interface StandInPipe : NSObject {
 @private
  StandInFileHandle* _reading;
  int _writer;
}
- (int)writer;  // what a child writes to; -1 once it was closed here
- (void)closeWriter;
+ (StandInPipe*)pipe;
- (StandInFileHandle*)fileHandleForReading;
@end

struct StandInChild;

@interface StandInTask : NSObject {
 @private
  StandInChild* _child;
}
+ (StandInTask*)launchedTaskWithLaunchPath:(NSString*)path arguments:(NSArray*)arguments;
- (void)setLaunchPath:(NSString*)path;
- (void)setArguments:(NSArray*)arguments;
- (void)setStandardOutput:(StandInPipe*)pipe;
- (void)setStandardError:(StandInPipe*)pipe;
- (void)setTerminationHandler:(void (^)(StandInTask* task))handler;
- (void)launch;
- (void)terminate;
- (void)waitUntilExit;
@end

/// The bytes that the file system knows a file by, which GNUstep's URLs do not tell.
@interface NSURL (FileSystemRepresentation)
- (BOOL)getFileSystemRepresentation:(char*)buffer maxLength:(NSUInteger)length;
@end

#define NSFileHandle StandInFileHandle
#define NSPipe StandInPipe
#define NSTask StandInTask
