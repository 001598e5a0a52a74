#pragma once

#import <Foundation/NSObject.h>

@class NSString;

FOUNDATION_EXPORT @interface NSURL : NSObject <NSCopying>
+ (instancetype)URLWithString:(NSString*)text;
+ (NSURL*)fileURLWithPath:(NSString*)path;
+ (NSURL*)fileURLWithPath:(NSString*)path isDirectory:(BOOL)isDirectory;
@property(readonly, copy) NSString* absoluteString;
@property(readonly, copy) NSString* scheme;
@property(readonly, copy) NSString* host;
@property(readonly, copy) NSString* path;
@property(readonly, copy) NSURL* URLByDeletingLastPathComponent;
- (BOOL)getFileSystemRepresentation:(char*)buffer maxLength:(NSUInteger)length;
@end
