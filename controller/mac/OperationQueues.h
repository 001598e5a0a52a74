#pragma once

#import <Foundation/Foundation.h>

#include <memory>

#include "controller/WorkQueue.h"

namespace launcher {

/// A queue whose items run as operations of `queue`, which is retained.
std::unique_ptr<WorkQueue> makeWorkQueue(NSOperationQueue* queue);

/// The queue of the main thread. Its items run one after another: one that is added while another
/// shows an alert runs after that alert has been dismissed.
std::unique_ptr<WorkQueue> makeMainQueue();

}  // namespace launcher
