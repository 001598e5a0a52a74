#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class NSGraphicsContext;

typedef NS_ENUM(NSUInteger, NSEventType) { NSEventTypeKeyDown = 10 };

typedef NS_OPTIONS(unsigned long long, NSEventMask) { NSEventMaskAny = NSUIntegerMax };

typedef NSUInteger NSEventModifierFlags;

FOUNDATION_EXPORT @interface NSEvent : NSObject <NSCopying, NSCoding>
+ (nullable NSEvent*)keyEventWithType:(NSEventType)type
                       location:(NSPoint)location
                  modifierFlags:(NSEventModifierFlags)flags
                      timestamp:(NSTimeInterval)time
                   windowNumber:(NSInteger)window
                        context:(nullable NSGraphicsContext*)context
                     characters:(NSString*)characters
    charactersIgnoringModifiers:(NSString*)unmodified
                      isARepeat:(BOOL)repeats
                        keyCode:(unsigned short)code;
@end

NS_ASSUME_NONNULL_END
