#pragma once

#import <AppKit/AppKit.h>

/// Shows the platform's "About" panel above the launcher's floating window, which would hide it.
/// The layout resource makes this object.
@interface AboutPanel : NSObject

- (IBAction)show:(id)sender;

@end
