#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSDictionary<KeyType, ObjectType>;
@class NSString;

typedef NSString* NSNotificationName;

FOUNDATION_EXPORT @interface NSNotification : NSObject
+ (instancetype)notificationWithName:(NSNotificationName)name object:(nullable id)object;
@property(readonly, copy) NSNotificationName name;
@property(nullable, readonly, retain) id object;
@end

NS_ASSUME_NONNULL_END
