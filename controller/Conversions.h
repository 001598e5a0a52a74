#pragma once

#import <Foundation/Foundation.h>

#include "discovery/PropertyList.h"

namespace launcher {

/// The listing's values; what the logic does not read becomes `PropertyList::Other`, and an entry
/// whose key is no text is dropped. Any thread.
PropertyList::Dictionary fromToolkit(NSDictionary* dictionary);

}  // namespace launcher
