#pragma once

#import <AppKit/NSView.h>

@class NSFont;

FOUNDATION_EXPORT @interface NSCell : NSObject <NSCopying, NSCoding>
@property(retain) NSFont* font;
- (NSRect)drawingRectForBounds:(NSRect)bounds;
@end

FOUNDATION_EXPORT @interface NSActionCell : NSCell
@end

FOUNDATION_EXPORT @interface NSTextFieldCell : NSActionCell
@end
