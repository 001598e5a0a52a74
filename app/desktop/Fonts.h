#pragma once

#include <string>
#include <string_view>

namespace launcher {

enum class FontWeight { regular, bold };

/// The PostScript name of the font in which this desktop shows plain text of a language, e.g.
/// "DejaVuSans-Bold" or "NotoSansCJKjp-Regular". Empty where there is no font at all. One thread.
///
/// The language is named as by preferredLanguages(), e.g. "ja-JP"; empty: whichever. The family is
/// the one that the desktop prefers, e.g. "Cantarell"; empty, not there, or without the language's
/// letters: the font of plain text without serifs.
std::string desktopFont(const std::string& language, FontWeight weight,
                        const std::string& family = {});

/// The family in a font's description, as desktops write it.
///
///     "Cantarell 11"       → "Cantarell"
///     "Noto Sans,  10.5"   → "Noto Sans"
///     "Ubuntu"             → "Ubuntu"
std::string fontFamily(std::string_view description);

}  // namespace launcher
