#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;

FOUNDATION_EXPORT @interface NSURL : NSObject <NSCopying>
+ (nullable instancetype)URLWithString:(NSString*)text;
+ (NSURL*)fileURLWithPath:(NSString*)path;
+ (NSURL*)fileURLWithPath:(NSString*)path isDirectory:(BOOL)isDirectory;
@property(nullable, readonly, copy) NSString* absoluteString;
@property(nullable, readonly, copy) NSString* scheme;
@property(nullable, readonly, copy) NSString* host;
@property(nullable, readonly, copy) NSString* path;
@property(nullable, readonly, copy) NSURL* URLByDeletingLastPathComponent;
- (BOOL)getFileSystemRepresentation:(char*)buffer maxLength:(NSUInteger)length;
@end

NS_ASSUME_NONNULL_END
