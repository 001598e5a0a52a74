#pragma once

#import <AppKit/NSCell.h>
#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

@class NSColor;
@protocol NSTextFieldDelegate;

FOUNDATION_EXPORT const NSNotificationName NSControlTextDidChangeNotification;

FOUNDATION_EXPORT @interface NSText : NSView
@property NSRange selectedRange;
@end

FOUNDATION_EXPORT @interface NSControl : NSView
@property(getter=isEnabled) BOOL enabled;
@property(nullable, retain) NSFont* font;
@property(nullable, retain) __kindof NSCell* cell;
@property(copy) NSString* stringValue;
@property(nullable, assign) id target;
@property(nullable) SEL action;
- (nullable NSText*)currentEditor;
@end

FOUNDATION_EXPORT @interface NSButton : NSControl
@property(copy) NSString* title;
@property(copy) NSString* keyEquivalent;
- (void)performClick:(nullable id)sender;
@end

FOUNDATION_EXPORT @interface NSTextField : NSControl
@property(nullable, assign) id<NSTextFieldDelegate> delegate;
@property(getter=isEditable) BOOL editable;
@property(nullable, copy) NSColor* textColor;
@end

@protocol NSControlTextEditingDelegate <NSObject>
@optional
- (void)controlTextDidChange:(NSNotification*)notification;
@end

@protocol NSTextFieldDelegate <NSControlTextEditingDelegate>
@end

NS_ASSUME_NONNULL_END
