#pragma once

#import <Foundation/NSObject.h>

@class NSDictionary<KeyType, ObjectType>;
@class NSString;

FOUNDATION_EXPORT @interface NSNotification : NSObject
+ (instancetype)notificationWithName:(NSString*)name object:(id)object;
@property(readonly, copy) NSString* name;
@property(readonly, retain) id object;
@end
