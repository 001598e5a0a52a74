#pragma once

#import <Foundation/Foundation.h>

@class NSImage;
@protocol NSApplicationDelegate;

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
  NSApplicationActivationPolicyRegular,
};

FOUNDATION_EXPORT @interface NSResponder : NSObject <NSCoding>
@end

FOUNDATION_EXPORT @interface NSApplication : NSResponder
@property(class, readonly, retain) NSApplication* sharedApplication;
@property(assign) id<NSApplicationDelegate> delegate;
@property(retain) NSImage* applicationIconImage;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
- (void)activateIgnoringOtherApps:(BOOL)flag;
- (void)run;
- (void)terminate:(id)sender;
@end

@protocol NSApplicationDelegate <NSObject>
@optional
- (void)applicationDidFinishLaunching:(NSNotification*)notification;
- (void)applicationWillTerminate:(NSNotification*)notification;
- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)application;
@end

FOUNDATION_EXPORT int NSApplicationMain(int argc, const char* argv[]);
