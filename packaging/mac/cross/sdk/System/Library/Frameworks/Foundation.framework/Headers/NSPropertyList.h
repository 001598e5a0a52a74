#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

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
+ (nullable id)propertyListWithData:(NSData*)data
                   options:(NSPropertyListReadOptions)options
                    format:(nullable NSPropertyListFormat*)format
                     error:(NSError**)error;
@end

NS_ASSUME_NONNULL_END
