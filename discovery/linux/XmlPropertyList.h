#pragma once

#include <string_view>

#include "discovery/PropertyList.h"

namespace launcher {

/// Reads a property list in XML. Throws `UnreadableList`.
///
/// Nothing is fetched and no entity is known but the five of every document: a document type may be
/// named, but not declare anything. Attributes say nothing about a property list and are passed
/// over. Comments may stand between elements, not in texts.
PropertyList readXmlPropertyList(std::string_view bytes);

}  // namespace launcher
