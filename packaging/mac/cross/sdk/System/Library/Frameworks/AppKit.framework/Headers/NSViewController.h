#pragma once

#import <AppKit/NSView.h>

FOUNDATION_EXPORT @interface NSViewController : NSResponder
- (instancetype)initWithNibName:(NSString*)name bundle:(NSBundle*)bundle;
- (instancetype)initWithCoder:(NSCoder*)coder;
@property(retain) NSView* view;
@property(retain) id representedObject;
- (void)loadView;
- (void)viewDidLoad;
- (void)viewWillAppear;
@end
