#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/ApplicationBundle.h"
#include "base/Url.h"
#include "discovery/PropertyList.h"

namespace launcher {

/// Returns the server location recorded on a disk image file, or absent.
using OriginReader = std::function<std::optional<std::string>(const Url& imageFile)>;

/// Looks for attached disk images with a volume mounted exactly at the application's parent folder.
/// Asks `origin` about them in the listing's order and returns its first answer. Skips records that
/// lack a key or hold a value of another kind. Any thread.
std::optional<std::string> processDMGData(const PropertyList::Dictionary& listing,
                                          const ApplicationBundle& bundle,
                                          const OriginReader& origin);

}  // namespace launcher
