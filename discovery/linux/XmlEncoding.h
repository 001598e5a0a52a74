#pragma once

#include <string>
#include <string_view>

namespace launcher {

/// Returns an XML document in UTF-8, without byte-order mark, declaration and the blanks around it.
///
/// The byte-order mark tells the encoding, else the name in the declaration, which Qt or ICU must
/// know, else it is UTF-8. Throws `UnreadableList` for a wrong declaration, an unknown encoding,
/// bytes that are not valid in it, a NUL, and a text of more than 16 MB.
std::string inUtf8(std::string_view document);

}  // namespace launcher
