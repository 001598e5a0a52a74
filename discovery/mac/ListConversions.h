#pragma once

#import <Foundation/Foundation.h>

#include "discovery/PropertyList.h"

/// Converts Foundation's property lists to ours. Any thread.
namespace launcher {

/// Converts an object of any kind. Throws `UnreadableList` for a list beyond the limits: a small
/// list may refer to its parts many times.
PropertyList toPropertyList(id object);

/// Converts a dictionary. The result is empty if the dictionary goes beyond the limits or has a key
/// that is no text.
PropertyList::Dictionary toDictionary(NSDictionary* dictionary);

}  // namespace launcher
