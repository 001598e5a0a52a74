// Linked into a second build of the launcher: says on the standard error stream when the view had
// loaded.

#import <AppKit/AppKit.h>

#include <iostream>

#import "app/gnustep/Methods.h"
#include "bench/stage/Clock.h"
#import "controller/mac/ViewController.h"

@interface ViewController (ViewLoaded)
@end

@implementation ViewController (ViewLoaded)

+ (void)load {
  launcher::exchangeMethods(self, @selector(viewDidLoad), @selector(bench_viewDidLoad));
}

- (void)bench_viewDidLoad {
  std::cerr << "loaded " << launcher::monotonicNow() << std::endl;
  [self bench_viewDidLoad];
}

@end
