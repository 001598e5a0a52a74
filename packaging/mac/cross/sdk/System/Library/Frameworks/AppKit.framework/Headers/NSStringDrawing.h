#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSInteger, NSStringDrawingOptions) {
  NSStringDrawingUsesLineFragmentOrigin = 1 << 0,
};

FOUNDATION_EXPORT const NSAttributedStringKey NSFontAttributeName;

@interface NSString (NSStringDrawing)
- (NSSize)sizeWithAttributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attributes;
@end

@interface NSAttributedString (NSStringDrawing)
- (NSRect)boundingRectWithSize:(NSSize)size options:(NSStringDrawingOptions)options;
@end

NS_ASSUME_NONNULL_END
