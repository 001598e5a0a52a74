#pragma once

#import <Foundation/Foundation.h>

namespace launcher {

/// Does something on a thread that is not Foundation's own, as Foundation's threads do it.
template <class Act>
void onForeignThread(Act act) {
  GSRegisterCurrentThread();
  @autoreleasepool {
    act();
  }
  GSUnregisterCurrentThread();
}

}  // namespace launcher
