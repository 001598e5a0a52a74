#pragma once

#import <Foundation/NSObject.h>

FOUNDATION_EXPORT @interface NSDictionary<__covariant KeyType, __covariant ObjectType>
    : NSObject <NSCopying, NSFastEnumeration>
+ (instancetype)dictionaryWithObjects:(const ObjectType[])objects
                              forKeys:(const KeyType<NSCopying>[])keys
                                count:(NSUInteger)count;
@property(readonly) NSUInteger count;
- (ObjectType)objectForKey:(KeyType)key;
- (ObjectType)objectForKeyedSubscript:(KeyType)key;
@end

FOUNDATION_EXPORT @interface NSMutableDictionary<KeyType, ObjectType>
    : NSDictionary<KeyType, ObjectType>
+ (instancetype)dictionary;
- (void)setObject:(ObjectType)object forKey:(KeyType<NSCopying>)key;
@end
