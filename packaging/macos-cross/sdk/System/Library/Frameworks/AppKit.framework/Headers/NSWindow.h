#pragma once

#import <AppKit/NSView.h>

typedef NSInteger NSWindowLevel;

FOUNDATION_EXPORT @interface NSWindow : NSResponder
@property NSWindowLevel level;
@property(retain) NSView* contentView;
@end
