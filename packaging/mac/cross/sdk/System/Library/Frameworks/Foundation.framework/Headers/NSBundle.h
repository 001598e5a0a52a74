#pragma once

#import <Foundation/NSObject.h>

@class NSString;
@class NSURL;

FOUNDATION_EXPORT @interface NSBundle : NSObject
@property(class, readonly, retain) NSBundle* mainBundle;
+ (instancetype)bundleWithPath:(NSString*)path;
@property(readonly, copy) NSURL* bundleURL;
@property(readonly, copy) NSString* bundlePath;
@property(readonly, copy) NSString* resourcePath;
- (NSString*)pathForResource:(NSString*)name ofType:(NSString*)extension;
- (NSString*)localizedStringForKey:(NSString*)key
                             value:(NSString*)value
                             table:(NSString*)table __attribute__((format_arg(1)));
@end

#define NSLocalizedString(key, comment) \
  [[NSBundle mainBundle] localizedStringForKey:(key) value:@"" table:nil]
