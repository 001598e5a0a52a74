#pragma once

#include <string>
#include <string_view>

namespace launcher {

/// An XML document in UTF-8, without a byte-order mark and without blanks before it.
///
/// Its encoding is the one of its byte-order mark, else what its declaration names, as `iconv`
/// knows it, else UTF-8. What is UTF-8 already is neither copied nor checked; what is not goes to
/// `converted`. Throws `UnreadableList` for an unknown encoding, for bytes that are no text in it,
/// and for a text of more than 16 MB.
std::string_view inUtf8(std::string_view document, std::string& converted);

}  // namespace launcher
