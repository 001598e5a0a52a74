#pragma once

#import <Foundation/NSObject.h>

@class NSString;

FOUNDATION_EXPORT __attribute__((objc_exception)) @interface NSException : NSObject
@property(readonly, copy) NSString* name;
@property(readonly, copy) NSString* reason;
@end

FOUNDATION_EXPORT @interface NSError : NSObject
@property(readonly, copy) NSString* localizedDescription;
@end
