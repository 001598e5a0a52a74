#pragma once

#import <AppKit/AppKit.h>

#include "viewer/Arguments.h"

/// The sample viewer's only window. Closing it ends the program.
@interface SampleWindow : NSObject <NSApplicationDelegate> {
 @private
  NSWindow* _window;
}

- (instancetype)initWithArguments:(const viewer::Arguments&)arguments;

- (void)show;

@end
