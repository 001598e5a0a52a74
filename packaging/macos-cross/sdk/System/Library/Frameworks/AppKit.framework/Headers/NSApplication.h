#pragma once

#import <Foundation/Foundation.h>

@protocol NSApplicationDelegate;

FOUNDATION_EXPORT @interface NSResponder : NSObject <NSCoding>
@end

FOUNDATION_EXPORT @interface NSApplication : NSResponder
@property(class, readonly, retain) NSApplication* sharedApplication;
@property(assign) id<NSApplicationDelegate> delegate;
- (void)terminate:(id)sender;
@end

@protocol NSApplicationDelegate <NSObject>
@optional
- (void)applicationDidFinishLaunching:(NSNotification*)notification;
- (void)applicationWillTerminate:(NSNotification*)notification;
- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)application;
@end

FOUNDATION_EXPORT int NSApplicationMain(int argc, const char* argv[]);
