#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;

FOUNDATION_EXPORT __attribute__((objc_exception)) @interface NSException : NSObject
@property(readonly, copy) NSString* name;
@property(nullable, readonly, copy) NSString* reason;
@end

FOUNDATION_EXPORT @interface NSError : NSObject
@property(readonly, copy) NSString* localizedDescription;
@end

NS_ASSUME_NONNULL_END
