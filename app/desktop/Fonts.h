#pragma once

#include <string>

namespace launcher {

enum class FontWeight { regular, bold };

/// The PostScript name of the font in which this desktop shows plain text of a language, e.g.
/// "DejaVuSans-Bold" or "NotoSansCJKjp-Regular". Empty where there is no font at all. One thread.
///
/// The language is named as by preferredLanguages(), e.g. "ja-JP"; empty: whichever.
std::string desktopFont(const std::string& language, FontWeight weight);

}  // namespace launcher
