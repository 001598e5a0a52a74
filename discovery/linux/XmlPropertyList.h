#pragma once

#include <string_view>

#include "discovery/PropertyList.h"

namespace launcher {

/// Reads a property list in XML. Throws `UnreadableList`.
///
/// Fetches nothing, and knows only XML's five own entities: a document may name its type but
/// declare nothing. Ignores attributes, which mean nothing in a property list. Refuses more than
/// 10,000 `=` in a document, since so many attributes take too long. Comments may stand between
/// elements, not inside texts.
PropertyList readXmlPropertyList(std::string_view bytes);

}  // namespace launcher
