#pragma once

#include <string>
#include <string_view>

namespace launcher {

/// An XML document in UTF-8, without a byte-order mark.
///
/// Its encoding is what its first bytes show (UTF-8 or UTF-16, of either byte order), else what its
/// declaration names (UTF-8, US-ASCII or ISO-8859-1), else UTF-8. Throws `UnreadableList` for any
/// other. What is UTF-8 already is neither copied nor checked. What is not goes to `converted`, and
/// may have 4 MB.
std::string_view inUtf8(std::string_view document, std::string& converted);

}  // namespace launcher
