#pragma once

#import <AppKit/AppKit.h>

/// Ends the application when its window closes, and runs the quit sequence.
@interface AppDelegate : NSObject <NSApplicationDelegate>
@end
