#pragma once

// GNUstep's Foundation with child processes like macOS's. GNUstep's own report neither output nor
// exit when it comes, and change the state of the whole process. These hold nothing longer than
// they must, so that a use after the end shows.

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

/// The bytes by which the file system knows a file. GNUstep's NSURL does not give them.
@interface NSURL (FileSystemRepresentation)
- (BOOL)getFileSystemRepresentation:(char*)buffer maxLength:(NSUInteger)length;
@end

#define NSFileHandle StandInFileHandle
#define NSPipe StandInPipe
#define NSTask StandInTask
