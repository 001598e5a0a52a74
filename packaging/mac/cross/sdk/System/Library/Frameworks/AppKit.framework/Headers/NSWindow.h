#pragma once

#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

@class NSViewController;

typedef NSInteger NSWindowLevel;
static const NSWindowLevel NSNormalWindowLevel = 0;
static const NSWindowLevel NSFloatingWindowLevel = 3;
static const NSWindowLevel NSModalPanelWindowLevel = 8;

FOUNDATION_EXPORT @interface NSWindow : NSResponder
@property(copy) NSString* title;
@property NSWindowLevel level;
@property(nullable, retain) NSView* contentView;
@property(nullable, retain) NSViewController* contentViewController
    API_AVAILABLE(macos(10.10));
@property NSSize contentMinSize;
@property NSSize contentMaxSize;
@property(readonly) NSRect frame;
@property(readonly) NSInteger windowNumber;
@property(readonly, getter=isKeyWindow) BOOL keyWindow;
@property(readonly, getter=isVisible) BOOL visible;
@property(nullable, readonly, assign) NSResponder* firstResponder;
@property BOOL preventsApplicationTerminationWhenModal;
- (BOOL)makeFirstResponder:(nullable NSResponder*)responder;
- (void)orderFront:(nullable id)sender;
- (void)orderOut:(nullable id)sender;
- (void)setFrame:(NSRect)frame display:(BOOL)display;
- (void)makeKeyAndOrderFront:(nullable id)sender;
@end

FOUNDATION_EXPORT @interface NSPanel : NSWindow
@end

NS_ASSUME_NONNULL_END
