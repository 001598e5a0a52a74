#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSArray<ObjectType>;
@class NSString;

FOUNDATION_EXPORT @interface NSTask : NSObject
+ (NSTask*)launchedTaskWithLaunchPath:(NSString*)path arguments:(NSArray<NSString*>*)arguments
    API_DEPRECATED("Use launchedTaskWithExecutableURL", macos(10.0, API_TO_BE_DEPRECATED));
@property(nullable, copy) NSString* launchPath
    API_DEPRECATED("Use executableURL", macos(10.0, API_TO_BE_DEPRECATED));
@property(nullable, copy) NSArray<NSString*>* arguments;
@property(nullable, retain) id standardOutput;
@property(nullable, retain) id standardError;
@property(nullable, copy) void (^terminationHandler)(NSTask* task) API_AVAILABLE(macos(10.7));
- (void)launch API_DEPRECATED("Use launchAndReturnError", macos(10.0, API_TO_BE_DEPRECATED));
- (void)terminate;
- (void)waitUntilExit;
@end

NS_ASSUME_NONNULL_END
