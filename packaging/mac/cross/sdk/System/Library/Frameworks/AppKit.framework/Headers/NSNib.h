#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

FOUNDATION_EXPORT @interface NSNib : NSObject
- (nullable instancetype)initWithNibNamed:(NSString*)name bundle:(nullable NSBundle*)bundle;
- (BOOL)instantiateWithOwner:(nullable id)owner topLevelObjects:(NSArray* _Nullable* _Nullable)objects;
@end

NS_ASSUME_NONNULL_END
