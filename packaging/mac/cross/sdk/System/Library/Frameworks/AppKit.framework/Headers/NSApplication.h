#pragma once

#import <AppKit/NSEvent.h>
#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class NSImage;
@class NSWindow;

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
  NSApplicationActivationPolicyRegular,
};

FOUNDATION_EXPORT const NSNotificationName NSApplicationDidFinishLaunchingNotification;
FOUNDATION_EXPORT const NSNotificationName NSApplicationWillTerminateNotification;
FOUNDATION_EXPORT const NSRunLoopMode NSModalPanelRunLoopMode;

FOUNDATION_EXPORT @interface NSResponder : NSObject <NSCoding>
- (void)insertBacktab:(nullable id)sender;
- (void)insertTab:(nullable id)sender;
- (void)insertText:(id)text;
- (BOOL)tryToPerform:(SEL)action with:(nullable id)object;
@end

FOUNDATION_EXPORT @interface NSApplication : NSResponder
@property(class, readonly, retain) NSApplication* sharedApplication;
@property(readonly, getter=isActive) BOOL active;
@property(null_resettable, retain) NSImage* applicationIconImage;
@property(nullable, readonly, assign) NSWindow* modalWindow;
@property(readonly, copy) NSArray<NSWindow*>* windows;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
- (void)activateIgnoringOtherApps:(BOOL)flag
    API_DEPRECATED("Use activate", macos(10.0, API_TO_BE_DEPRECATED));
- (void)finishLaunching;
- (void)orderFrontStandardAboutPanel:(nullable id)sender;
- (nullable NSEvent*)nextEventMatchingMask:(NSEventMask)mask
                        untilDate:(nullable NSDate*)expiration
                           inMode:(NSRunLoopMode)mode
                          dequeue:(BOOL)dequeue;
- (void)postEvent:(NSEvent*)event atStart:(BOOL)atStart;
- (void)sendEvent:(NSEvent*)event;
- (void)terminate:(nullable id)sender;
@end

FOUNDATION_EXPORT __kindof NSApplication* _Null_unspecified NSApp;

@protocol NSApplicationDelegate <NSObject>
@optional
- (void)applicationDidFinishLaunching:(NSNotification*)notification;
- (void)applicationWillTerminate:(NSNotification*)notification;
- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)application;
@end

FOUNDATION_EXPORT int NSApplicationMain(int argc, const char* _Nonnull argv[_Nonnull]);

NS_ASSUME_NONNULL_END
