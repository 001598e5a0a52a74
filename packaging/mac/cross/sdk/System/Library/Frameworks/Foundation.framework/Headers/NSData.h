#pragma once

#import <Foundation/NSObject.h>

FOUNDATION_EXPORT @interface NSData : NSObject <NSCopying>
+ (instancetype)dataWithBytesNoCopy:(void*)bytes
                             length:(NSUInteger)length
                       freeWhenDone:(BOOL)freeWhenDone;
+ (instancetype)dataWithBytes:(const void*)bytes length:(NSUInteger)length;
@property(readonly) NSUInteger length;
@property(readonly) const void* bytes;
@end
