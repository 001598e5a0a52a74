#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

FOUNDATION_EXPORT @interface NSArray<__covariant ObjectType> : NSObject <NSCopying, NSFastEnumeration>
+ (instancetype)array;
+ (instancetype)arrayWithObjects:(const ObjectType _Nonnull[_Nonnull])objects count:(NSUInteger)count;
@property(readonly) NSUInteger count;
@property(nullable, readonly) ObjectType firstObject;
- (BOOL)containsObject:(ObjectType)object;
- (ObjectType)objectAtIndex:(NSUInteger)index;
- (ObjectType)objectAtIndexedSubscript:(NSUInteger)index;
@end

FOUNDATION_EXPORT @interface NSMutableArray<ObjectType> : NSArray<ObjectType>
+ (instancetype)arrayWithCapacity:(NSUInteger)capacity;
- (void)addObject:(ObjectType)object;
@end

NS_ASSUME_NONNULL_END
