#pragma once

#import <AppKit/NSView.h>

@class NSFont;

typedef NS_ENUM(NSUInteger, NSLineBreakMode) { NSLineBreakByCharWrapping = 1 };

FOUNDATION_EXPORT @interface NSCell : NSObject <NSCopying, NSCoding>
@property(retain) NSFont* font;
@property NSLineBreakMode lineBreakMode;
- (NSRect)drawingRectForBounds:(NSRect)bounds;
@end

FOUNDATION_EXPORT @interface NSActionCell : NSCell
@end

FOUNDATION_EXPORT @interface NSTextFieldCell : NSActionCell
@end
