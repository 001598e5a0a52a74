#pragma once

#include <string>
#include <string_view>

namespace launcher {

/// Writes a text for an element of an XML document. Escapes markup and carriage returns. Replaces
/// what XML cannot hold by U+FFFD: ill-formed UTF-8, control characters, U+FFFE and U+FFFF.
///
///     "a & b\r"   -> "a &amp; b&#13;"
///     "a\x01\xff" -> "a\ufffd\ufffd"
std::string xmlText(std::string_view bytes);

/// The XML property list whose one value is the given element.
std::string xmlPropertyList(std::string_view element);

}  // namespace launcher
