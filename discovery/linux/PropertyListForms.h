#pragma once

#include <cstddef>
#include <stdexcept>
#include <string_view>

#include "discovery/PropertyList.h"

namespace launcher {

/// Thrown for bytes that are no property list; says what is wrong with them.
class UnreadableList : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// How far a list may go. The readers of both forms ask before they make anything, so that a list
/// of a few bytes, nested or referring to one value many times, costs neither time nor memory.

/// Roughly the memory of one value or key with that much text.
std::size_t valueMemory(std::size_t textSize);

/// Refuses a list whose values take too much memory together.
void checkMemory(std::size_t memory);

/// Refuses a value that lies in too many others. The outermost has depth 1.
void checkDepth(int depth);

/// A list in XML, in UTF-8 or another encoding that it declares.
PropertyList readXmlPropertyList(std::string_view bytes);

/// Whether the bytes begin as a list in binary form does.
bool isBinaryPropertyList(std::string_view bytes);

/// A list in binary form.
PropertyList readBinaryPropertyList(std::string_view bytes);

}  // namespace launcher
