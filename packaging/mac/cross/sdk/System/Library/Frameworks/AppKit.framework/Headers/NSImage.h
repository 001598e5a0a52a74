#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

FOUNDATION_EXPORT @interface NSImage : NSObject
- (nullable instancetype)initWithContentsOfFile:(NSString*)file;
@end

NS_ASSUME_NONNULL_END
