#pragma once

#import <Foundation/Foundation.h>

#include <memory>

#include "controller/WorkQueue.h"

namespace launcher {

/// A queue whose items run as operations of `queue`, which is retained.
std::unique_ptr<WorkQueue> makeWorkQueue(NSOperationQueue* queue);

}  // namespace launcher
