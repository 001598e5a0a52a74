#pragma once

#import <AppKit/NSControl.h>

typedef NS_ENUM(NSUInteger, NSImageScaling) {
  NSImageScaleProportionallyUpOrDown = 3,
};

FOUNDATION_EXPORT @interface NSImage : NSObject
- (instancetype)initWithContentsOfFile:(NSString*)file;
@end

FOUNDATION_EXPORT @interface NSImageView : NSControl
@property(retain) NSImage* image;
@property NSImageScaling imageScaling;
@end
