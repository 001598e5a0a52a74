#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;
@class NSURL;

FOUNDATION_EXPORT @interface NSBundle : NSObject
@property(class, readonly, retain) NSBundle* mainBundle;
+ (nullable instancetype)bundleWithPath:(NSString*)path;
@property(readonly, copy) NSURL* bundleURL;
@property(readonly, copy) NSString* bundlePath;
@property(nullable, readonly, copy) NSString* resourcePath;
- (nullable NSString*)pathForResource:(nullable NSString*)name ofType:(nullable NSString*)extension;
- (NSString*)localizedStringForKey:(NSString*)key
                             value:(nullable NSString*)value
                             table:(nullable NSString*)table __attribute__((format_arg(1)));
@end

#define NSLocalizedString(key, comment) \
  [[NSBundle mainBundle] localizedStringForKey:(key) value:@"" table:nil]

NS_ASSUME_NONNULL_END
