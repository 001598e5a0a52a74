#pragma once

#import <AppKit/NSApplication.h>

@class CALayer;
@class NSWindow;

FOUNDATION_EXPORT @interface NSView : NSResponder
- (instancetype)initWithFrame:(NSRect)frame;
@property(readonly, assign) NSWindow* window;
@property BOOL wantsLayer;
@property(retain) CALayer* layer;
- (void)addSubview:(NSView*)view;
@end
