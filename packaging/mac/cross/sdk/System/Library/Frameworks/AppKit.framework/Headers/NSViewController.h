#pragma once

#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

FOUNDATION_EXPORT @interface NSViewController : NSResponder
- (instancetype)initWithNibName:(nullable NSString*)name bundle:(nullable NSBundle*)bundle;
- (nullable instancetype)initWithCoder:(NSCoder*)coder;
@property(retain) NSView* view;
@property(nullable, retain) id representedObject;
- (void)loadView;
- (void)viewDidLoad API_AVAILABLE(macos(10.10));
- (void)viewWillAppear API_AVAILABLE(macos(10.10));
@end

NS_ASSUME_NONNULL_END
