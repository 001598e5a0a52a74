#pragma once

#import <Foundation/Foundation.h>

typedef NSString* NSAccessibilityNotificationName;
typedef NSString* NSAccessibilityNotificationUserInfoKey;

typedef NS_ENUM(NSInteger, NSAccessibilityPriorityLevel) {
  NSAccessibilityPriorityLow = 10,
  NSAccessibilityPriorityMedium = 50,
  NSAccessibilityPriorityHigh = 90,
};

FOUNDATION_EXPORT NSAccessibilityNotificationName const
    NSAccessibilityAnnouncementRequestedNotification;
FOUNDATION_EXPORT NSAccessibilityNotificationUserInfoKey const NSAccessibilityAnnouncementKey;
FOUNDATION_EXPORT NSAccessibilityNotificationUserInfoKey const NSAccessibilityPriorityKey;

FOUNDATION_EXPORT void NSAccessibilityPostNotificationWithUserInfo(
    id _Nonnull element, NSAccessibilityNotificationName _Nonnull notification,
    NSDictionary<NSAccessibilityNotificationUserInfoKey, id>* _Nullable information);
