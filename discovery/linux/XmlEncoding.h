#pragma once

#include <string>
#include <string_view>

namespace launcher {

/// Returns an XML document in UTF-8, without a byte-order mark or leading blanks.
///
/// The byte-order mark tells the encoding, else the name in the declaration, which `iconv` must
/// know, else it is UTF-8. A document in UTF-8 is neither copied nor checked; any other is
/// converted into `converted`. Throws `UnreadableList` for an unknown encoding, for bytes that are
/// not valid in it, and for a text of more than 16 MB.
std::string_view inUtf8(std::string_view document, std::string& converted);

}  // namespace launcher
