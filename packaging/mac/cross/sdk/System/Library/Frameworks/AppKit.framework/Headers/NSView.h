#pragma once

#import <AppKit/NSApplication.h>

NS_ASSUME_NONNULL_BEGIN

@class CALayer;
@class NSWindow;

FOUNDATION_EXPORT @interface NSView : NSResponder
- (instancetype)initWithFrame:(NSRect)frame;
@property(nullable, readonly, assign) NSWindow* window;
@property(copy) NSArray<__kindof NSView*>* subviews;
@property NSRect frame;
@property NSRect bounds;
@property(getter=isHidden) BOOL hidden;
@property BOOL wantsLayer;
@property(nullable, retain) CALayer* layer;
- (void)addSubview:(NSView*)view;
@end

NS_ASSUME_NONNULL_END
