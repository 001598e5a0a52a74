#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

FOUNDATION_EXPORT @interface NSData : NSObject <NSCopying>
+ (instancetype)dataWithBytesNoCopy:(void*)bytes
                             length:(NSUInteger)length
                       freeWhenDone:(BOOL)freeWhenDone;
+ (instancetype)dataWithBytes:(nullable const void*)bytes length:(NSUInteger)length;
@property(readonly) NSUInteger length;
@property(readonly) const void* bytes;
@end

NS_ASSUME_NONNULL_END
