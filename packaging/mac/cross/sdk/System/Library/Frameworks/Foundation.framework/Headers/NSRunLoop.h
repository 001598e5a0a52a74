#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;

typedef NSString* NSRunLoopMode;

FOUNDATION_EXPORT const NSRunLoopMode NSDefaultRunLoopMode;

NS_ASSUME_NONNULL_END
