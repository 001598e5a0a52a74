#pragma once

#include <optional>
#include <string>

#include "base/Url.h"
#include "discovery/OriginAttribute.h"

namespace launcher {

/// The server location from which a file was downloaded: the first address in its origin attribute,
/// without the last path component. Absent if the attribute is missing, unreadable or of another
/// shape. `file` is a file URL. Any thread.
///
///     recorded "https://h/D/F.dmg"   -> "https://h/D/"
std::optional<std::string> extractWhereAreYouFrom(const Url& file,
                                                  const OriginAttribute& attribute);

}  // namespace launcher
