#pragma once

#include <string_view>

#include "discovery/PropertyList.h"

namespace launcher {

/// The platform's part of `readPropertyList`, which checks the size first, and binary lists with
/// `checkBinaryList`. Throws `UnreadableList` for bytes that are no list and for lists beyond the
/// limits. Any thread.
PropertyList readList(std::string_view bytes);

}  // namespace launcher
