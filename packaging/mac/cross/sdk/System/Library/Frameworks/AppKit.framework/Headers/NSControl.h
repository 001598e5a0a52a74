#pragma once

#import <AppKit/NSCell.h>
#import <AppKit/NSView.h>

@class NSColor;
@class NSText;
@protocol NSTextFieldDelegate;

FOUNDATION_EXPORT const NSNotificationName NSControlTextDidChangeNotification;

FOUNDATION_EXPORT @interface NSControl : NSView
@property(getter=isEnabled) BOOL enabled;
@property(retain) NSFont* font;
@property(retain) __kindof NSCell* cell;
@property(copy) NSString* stringValue;
@property(assign) id target;
@property SEL action;
- (NSText*)currentEditor;
@end

FOUNDATION_EXPORT @interface NSButton : NSControl
@property(copy) NSString* title;
@property(copy) NSString* keyEquivalent;
- (void)performClick:(id)sender;
@end

FOUNDATION_EXPORT @interface NSTextField : NSControl
@property(assign) id<NSTextFieldDelegate> delegate;
@property(getter=isEditable) BOOL editable;
@property(getter=isSelectable) BOOL selectable;
@property(getter=isBezeled) BOOL bezeled;
@property(getter=isBordered) BOOL bordered;
@property BOOL drawsBackground;
@property(copy) NSColor* textColor;
@end

@protocol NSControlTextEditingDelegate <NSObject>
@optional
- (void)controlTextDidChange:(NSNotification*)notification;
@end

@protocol NSTextFieldDelegate <NSControlTextEditingDelegate>
@end
