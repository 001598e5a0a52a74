#pragma once

#import <Foundation/Foundation.h>

@class NSGraphicsContext;

typedef NS_ENUM(NSUInteger, NSEventType) { NSEventTypeKeyDown = 10 };

typedef NS_OPTIONS(unsigned long long, NSEventMask) { NSEventMaskAny = NSUIntegerMax };

typedef NSUInteger NSEventModifierFlags;

FOUNDATION_EXPORT @interface NSEvent : NSObject <NSCopying, NSCoding>
+ (NSEvent*)keyEventWithType:(NSEventType)type
                       location:(NSPoint)location
                  modifierFlags:(NSEventModifierFlags)flags
                      timestamp:(NSTimeInterval)time
                   windowNumber:(NSInteger)window
                        context:(NSGraphicsContext*)context
                     characters:(NSString*)characters
    charactersIgnoringModifiers:(NSString*)unmodified
                      isARepeat:(BOOL)repeats
                        keyCode:(unsigned short)code;
@end
