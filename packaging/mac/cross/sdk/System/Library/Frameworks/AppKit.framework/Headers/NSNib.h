#pragma once

#import <Foundation/Foundation.h>

FOUNDATION_EXPORT @interface NSNib : NSObject
- (instancetype)initWithNibNamed:(NSString*)name bundle:(NSBundle*)bundle;
- (BOOL)instantiateWithOwner:(id)owner topLevelObjects:(NSArray**)objects;
@end
