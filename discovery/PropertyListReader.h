#pragma once

#include <string_view>

#include "discovery/PropertyList.h"

namespace launcher {

/// The platform's reader of property lists, behind `readPropertyList`, which asks it only about
/// bytes of a bearable size and binary lists that have passed `checkBinaryList`. Throws
/// `UnreadableList` for bytes that are no list, and for lists beyond the limits. Any thread.
PropertyList readList(std::string_view bytes);

}  // namespace launcher
