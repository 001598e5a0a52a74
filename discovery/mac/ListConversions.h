#pragma once

#import <Foundation/Foundation.h>

#include <optional>

#include "discovery/PropertyList.h"

/// From Foundation's property lists to ours. Any thread.
namespace launcher {

/// The list that an object is, whatever its kind; absent where it is nested too deeply or, with
/// parts that are referred to many times, too large.
std::optional<PropertyList> toPropertyList(id object);

/// The dictionary; empty where it is no list for us, or has a key that is no text.
PropertyList::Dictionary toDictionary(NSDictionary* dictionary);

}  // namespace launcher
