#pragma once

#import <Foundation/NSObject.h>

@class NSArray<ObjectType>;
@class NSString;

FOUNDATION_EXPORT @interface NSTask : NSObject
+ (NSTask*)launchedTaskWithLaunchPath:(NSString*)path arguments:(NSArray<NSString*>*)arguments;
@property(copy) NSString* launchPath;
@property(copy) NSArray<NSString*>* arguments;
@property(retain) id standardOutput;
@property(retain) id standardError;
@property(copy) void (^terminationHandler)(NSTask* task);
- (void)launch;
- (void)terminate;
- (void)waitUntilExit;
@end
