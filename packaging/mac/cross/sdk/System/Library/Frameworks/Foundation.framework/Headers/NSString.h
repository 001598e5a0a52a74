#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSData;
@class NSDictionary<KeyType, ObjectType>;

typedef unsigned short unichar;

typedef NSUInteger NSStringEncoding;
enum : NSStringEncoding { NSUTF8StringEncoding = 4 };

FOUNDATION_EXPORT @interface NSString : NSObject <NSCopying>
+ (instancetype)stringWithCharacters:(const unichar*)characters length:(NSUInteger)length;
+ (nullable instancetype)stringWithUTF8String:(const char*)text;
+ (instancetype)stringWithFormat:(NSString*)format, ...;
- (nullable instancetype)initWithBytes:(const void*)bytes
                       length:(NSUInteger)length
                     encoding:(NSStringEncoding)encoding;
- (instancetype)initWithCharactersNoCopy:(unichar*)characters
                                  length:(NSUInteger)length
                            freeWhenDone:(BOOL)freeWhenDone;
@property(readonly) NSUInteger length;
@property(nullable, readonly) const char* UTF8String;
@property(readonly) const char* fileSystemRepresentation;
@property(readonly, copy) NSString* decomposedStringWithCanonicalMapping;
- (unichar)characterAtIndex:(NSUInteger)index;
- (NSString*)substringFromIndex:(NSUInteger)from;
- (NSString*)substringToIndex:(NSUInteger)to;
- (void)getCharacters:(unichar*)buffer range:(NSRange)range;
- (nullable NSData*)dataUsingEncoding:(NSStringEncoding)encoding;
- (NSUInteger)lengthOfBytesUsingEncoding:(NSStringEncoding)encoding;
- (BOOL)isEqualToString:(NSString*)other;
- (NSString*)stringByAppendingPathComponent:(NSString*)component;
- (NSString*)stringByResolvingSymlinksInPath;
- (NSRange)rangeOfComposedCharacterSequenceAtIndex:(NSUInteger)index;
@end

typedef NSString* NSAttributedStringKey;

FOUNDATION_EXPORT @interface NSAttributedString : NSObject <NSCopying>
- (instancetype)initWithString:(NSString*)text
                    attributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attributes;
@end

NS_ASSUME_NONNULL_END
