#pragma once

#import <Foundation/NSObject.h>

FOUNDATION_EXPORT @interface NSCoder : NSObject
@end
