#pragma once

#import <Foundation/NSObject.h>

@class NSDictionary<KeyType, ObjectType>;
@class NSString;

typedef NSString* NSNotificationName;

FOUNDATION_EXPORT @interface NSNotification : NSObject
+ (instancetype)notificationWithName:(NSNotificationName)name object:(id)object;
@property(readonly, copy) NSNotificationName name;
@property(readonly, retain) id object;
@end
