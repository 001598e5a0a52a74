#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class NSButton;
@class NSWindow;

typedef NSInteger NSModalResponse;

FOUNDATION_EXPORT @interface NSAlert : NSObject
@property(copy) NSString* messageText;
@property(copy) NSString* informativeText;
@property(readonly, retain) NSWindow* window;
- (NSButton*)addButtonWithTitle:(NSString*)title;
- (NSModalResponse)runModal;
@end

NS_ASSUME_NONNULL_END
