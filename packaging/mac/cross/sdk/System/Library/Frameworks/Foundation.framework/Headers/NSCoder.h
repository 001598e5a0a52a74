#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

FOUNDATION_EXPORT @interface NSCoder : NSObject
@end

NS_ASSUME_NONNULL_END
