#pragma once

#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

@class NSAttributedString;
@class NSEvent;
@class NSFont;
@class NSText;

FOUNDATION_EXPORT @interface NSCell : NSObject <NSCopying, NSCoding>
@property(nullable, retain) NSFont* font;
@property(readonly, copy) NSAttributedString* attributedStringValue;
- (NSRect)titleRectForBounds:(NSRect)bounds;
- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView*)view;
- (void)editWithFrame:(NSRect)frame
               inView:(NSView*)view
               editor:(NSText*)editor
             delegate:(nullable id)delegate
                event:(nullable NSEvent*)event;
- (void)selectWithFrame:(NSRect)frame
                 inView:(NSView*)view
                 editor:(NSText*)editor
               delegate:(nullable id)delegate
                  start:(NSInteger)start
                 length:(NSInteger)length;
- (void)endEditing:(NSText*)editor;
@end

FOUNDATION_EXPORT @interface NSActionCell : NSCell
@end

FOUNDATION_EXPORT @interface NSTextFieldCell : NSActionCell
@property(nullable, copy) NSString* placeholderString;
@end

NS_ASSUME_NONNULL_END
