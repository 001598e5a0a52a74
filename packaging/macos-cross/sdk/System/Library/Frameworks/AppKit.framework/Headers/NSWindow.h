#pragma once

#import <AppKit/NSView.h>

typedef NSInteger NSWindowLevel;

typedef NS_OPTIONS(NSUInteger, NSWindowStyleMask) {
  NSWindowStyleMaskTitled = 1 << 0,
  NSWindowStyleMaskClosable = 1 << 1,
  NSWindowStyleMaskMiniaturizable = 1 << 2,
};

typedef NS_ENUM(NSUInteger, NSBackingStoreType) { NSBackingStoreBuffered = 2 };

FOUNDATION_EXPORT @interface NSWindow : NSResponder
- (instancetype)initWithContentRect:(NSRect)rect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backing
                              defer:(BOOL)defer;
@property(copy) NSString* title;
@property(getter=isReleasedWhenClosed) BOOL releasedWhenClosed;
@property NSWindowLevel level;
@property(retain) NSView* contentView;
@property(assign) NSView* initialFirstResponder;
- (void)center;
- (void)makeKeyAndOrderFront:(id)sender;
@end
