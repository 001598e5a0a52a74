#pragma once

#import <Foundation/Foundation.h>

#include "discovery/PropertyList.h"

/// From Foundation's property lists to ours. Any thread.
namespace launcher {

/// The list that an object is, whatever its kind. Throws `UnreadableList` where it goes beyond the
/// limits, which one with parts that are referred to many times soon does.
PropertyList toPropertyList(id object);

/// The dictionary; empty where it goes beyond the limits, or has a key that is no text.
PropertyList::Dictionary toDictionary(NSDictionary* dictionary);

}  // namespace launcher
