#pragma once

#import <AppKit/NSView.h>

@protocol NSTextFieldDelegate;

FOUNDATION_EXPORT @interface NSControl : NSView
@property BOOL enabled;
- (BOOL)isEnabled;
@property(copy) NSString* stringValue;
@end

FOUNDATION_EXPORT @interface NSButton : NSControl
@property(copy) NSString* title;
- (void)performClick:(id)sender;
@end

FOUNDATION_EXPORT @interface NSTextField : NSControl
@property(assign) id<NSTextFieldDelegate> delegate;
@end

@protocol NSControlTextEditingDelegate <NSObject>
@optional
- (void)controlTextDidChange:(NSNotification*)notification;
@end

@protocol NSTextFieldDelegate <NSControlTextEditingDelegate>
@end
