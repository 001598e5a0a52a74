#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSError;
@class NSString;
@class NSURL;

typedef NS_OPTIONS(uint64_t, NSTextCheckingType) { NSTextCheckingTypeLink = 1ULL << 5 };
typedef uint64_t NSTextCheckingTypes;

FOUNDATION_EXPORT @interface NSTextCheckingResult : NSObject
@property(readonly) NSRange range;
@property(nullable, readonly, copy) NSURL* URL;
@end

typedef NS_OPTIONS(NSUInteger, NSMatchingOptions) {
  NSMatchingReportProgress = 1 << 0,
  NSMatchingReportCompletion = 1 << 1,
  NSMatchingAnchored = 1 << 2,
};

FOUNDATION_EXPORT API_AVAILABLE(macos(10.7)) @interface NSRegularExpression : NSObject
- (nullable NSTextCheckingResult*)firstMatchInString:(NSString*)string
                                    options:(NSMatchingOptions)options
                                      range:(NSRange)range;
@end

FOUNDATION_EXPORT API_AVAILABLE(macos(10.7)) @interface NSDataDetector : NSRegularExpression
- (nullable instancetype)initWithTypes:(NSTextCheckingTypes)types error:(NSError**)error;
@end

NS_ASSUME_NONNULL_END
