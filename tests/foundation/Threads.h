#pragma once

#import <Foundation/Foundation.h>

namespace launcher {

/// Acts on a thread that Foundation did not start, as Foundation acts on its own threads.
template <class Act>
void onForeignThread(Act act) {
  GSRegisterCurrentThread();
  @autoreleasepool {
    act();
  }
  GSUnregisterCurrentThread();
}

}  // namespace launcher
