#pragma once

#import <AppKit/NSControl.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSImageScaling) {
  NSImageScaleProportionallyUpOrDown = 3,
};

FOUNDATION_EXPORT @interface NSImage : NSObject
- (nullable instancetype)initWithContentsOfFile:(NSString*)file;
@end

FOUNDATION_EXPORT @interface NSImageView : NSControl
@property(nullable, retain) NSImage* image;
@property NSImageScaling imageScaling;
@end

NS_ASSUME_NONNULL_END
