#pragma once

#import <AppKit/AppKit.h>

/// Ends the application with its window, and with the application what it started.
@interface AppDelegate : NSObject <NSApplicationDelegate>
@end
