#pragma once

#import <AppKit/NSEvent.h>
#import <Foundation/Foundation.h>

@class NSImage;
@class NSWindow;
@protocol NSApplicationDelegate;

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
  NSApplicationActivationPolicyRegular,
};

FOUNDATION_EXPORT const NSNotificationName NSApplicationWillTerminateNotification;
FOUNDATION_EXPORT const NSRunLoopMode NSModalPanelRunLoopMode;

FOUNDATION_EXPORT @interface NSResponder : NSObject <NSCoding>
- (void)insertBacktab:(id)sender;
- (void)insertTab:(id)sender;
- (void)insertText:(id)text;
- (BOOL)tryToPerform:(SEL)action with:(id)object;
@end

FOUNDATION_EXPORT @interface NSApplication : NSResponder
@property(class, readonly, retain) NSApplication* sharedApplication;
@property(assign) id<NSApplicationDelegate> delegate;
@property(readonly, getter=isActive) BOOL active;
@property(retain) NSImage* applicationIconImage;
@property(readonly, assign) NSWindow* modalWindow;
@property(readonly, copy) NSArray<NSWindow*>* windows;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
- (void)activateIgnoringOtherApps:(BOOL)flag;
- (void)finishLaunching;
- (NSEvent*)nextEventMatchingMask:(NSEventMask)mask
                        untilDate:(NSDate*)expiration
                           inMode:(NSRunLoopMode)mode
                          dequeue:(BOOL)dequeue;
- (void)postEvent:(NSEvent*)event atStart:(BOOL)atStart;
- (void)sendEvent:(NSEvent*)event;
- (void)run;
- (void)terminate:(id)sender;
@end

FOUNDATION_EXPORT __kindof NSApplication* NSApp;

@protocol NSApplicationDelegate <NSObject>
@optional
- (void)applicationDidFinishLaunching:(NSNotification*)notification;
- (void)applicationWillTerminate:(NSNotification*)notification;
- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)application;
@end

FOUNDATION_EXPORT int NSApplicationMain(int argc, const char* argv[]);
