#pragma once

#import <Foundation/NSObject.h>

@class NSData;
@class NSError;

typedef NS_ENUM(NSUInteger, NSPropertyListFormat) {
  NSPropertyListOpenStepFormat = 1,
  NSPropertyListXMLFormat_v1_0 = 100,
  NSPropertyListBinaryFormat_v1_0 = 200,
};

typedef NSUInteger NSPropertyListReadOptions;
enum : NSUInteger { NSPropertyListMutableContainers = 1 };

FOUNDATION_EXPORT @interface NSPropertyListSerialization : NSObject
+ (id)propertyListWithData:(NSData*)data
                   options:(NSPropertyListReadOptions)options
                    format:(NSPropertyListFormat*)format
                     error:(NSError**)error;
@end
