#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/ApplicationBundle.h"
#include "base/Url.h"
#include "discovery/PropertyList.h"

namespace launcher {

/// Asks for the server location recorded on a disk image file.
using OriginReader = std::function<std::optional<std::string>(const Url& imageFile)>;

/// Finds the attached disk images that have a volume mounted exactly at the folder that holds the
/// application, and returns the first location that `origin` gives for one of them, in the
/// listing's order. Records that lack a key or hold a value of another kind are passed over.
/// Any thread.
std::optional<std::string> processDMGData(const PropertyList::Dictionary& listing,
                                          const ApplicationBundle& bundle,
                                          const OriginReader& origin);

}  // namespace launcher
