#pragma once

#import <AppKit/NSApplication.h>

@class CALayer;
@class NSWindow;

FOUNDATION_EXPORT @interface NSView : NSResponder
- (instancetype)initWithFrame:(NSRect)frame;
@property(readonly, assign) NSWindow* window;
@property(copy) NSArray<__kindof NSView*>* subviews;
@property NSRect frame;
@property NSRect bounds;
@property(getter=isHidden) BOOL hidden;
@property BOOL wantsLayer;
@property(retain) CALayer* layer;
- (void)addSubview:(NSView*)view;
@end
