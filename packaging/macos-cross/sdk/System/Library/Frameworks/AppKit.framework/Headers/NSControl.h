#pragma once

#import <AppKit/NSCell.h>
#import <AppKit/NSView.h>

@protocol NSTextFieldDelegate;

FOUNDATION_EXPORT @interface NSControl : NSView
@property(getter=isEnabled) BOOL enabled;
@property(retain) NSFont* font;
@property(retain) __kindof NSCell* cell;
@property(copy) NSString* stringValue;
@end

FOUNDATION_EXPORT @interface NSButton : NSControl
@property(copy) NSString* title;
- (void)performClick:(id)sender;
@end

FOUNDATION_EXPORT @interface NSTextField : NSControl
@property(assign) id<NSTextFieldDelegate> delegate;
@property(getter=isEditable) BOOL editable;
@property(getter=isSelectable) BOOL selectable;
@property(getter=isBezeled) BOOL bezeled;
@property(getter=isBordered) BOOL bordered;
@property BOOL drawsBackground;
@end

@protocol NSControlTextEditingDelegate <NSObject>
@optional
- (void)controlTextDidChange:(NSNotification*)notification;
@end

@protocol NSTextFieldDelegate <NSControlTextEditingDelegate>
@end
