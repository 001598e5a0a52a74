#pragma once

#import <Foundation/NSObject.h>

@class NSString;

typedef NSString* NSRunLoopMode;

FOUNDATION_EXPORT const NSRunLoopMode NSDefaultRunLoopMode;
