#pragma once

#import <Foundation/NSObject.h>

@class NSError;
@class NSString;
@class NSURL;

typedef NS_OPTIONS(uint64_t, NSTextCheckingType) { NSTextCheckingTypeLink = 1ULL << 5 };
typedef uint64_t NSTextCheckingTypes;

FOUNDATION_EXPORT @interface NSTextCheckingResult : NSObject
@property(readonly) NSRange range;
@property(readonly, copy) NSURL* URL;
@end

typedef NS_OPTIONS(NSUInteger, NSMatchingOptions) { NSMatchingReportCompletion = 1 << 1 };

FOUNDATION_EXPORT @interface NSRegularExpression : NSObject
- (NSTextCheckingResult*)firstMatchInString:(NSString*)string
                                    options:(NSMatchingOptions)options
                                      range:(NSRange)range;
@end

FOUNDATION_EXPORT @interface NSDataDetector : NSRegularExpression
- (instancetype)initWithTypes:(NSTextCheckingTypes)types error:(NSError**)error;
@end
