#pragma once

#include <string>
#include <string_view>

namespace launcher {

/// A text as it stands in an element of an XML document: what is markup escaped, as are line ends
/// other than a line feed; what XML cannot hold (ill-formed UTF-8, control characters, U+FFFE
/// and U+FFFF) replaced by U+FFFD.
///
///     "a & b\r"   -> "a &amp; b&#13;"
///     "a\x01\xff" -> "a\ufffd\ufffd"
std::string xmlText(std::string_view bytes);

/// A property list in XML with one value, given as its element.
std::string xmlPropertyList(std::string_view element);

}  // namespace launcher
