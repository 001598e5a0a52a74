#pragma once

#include <string_view>

#include "app/desktop/XSettings.h"

namespace launcher {

/// How much larger than on an ordinary screen the desktop wants windows to be: 1 to 4, a whole
/// number, since the toolkit's lines and letters are crisp at no other.
///
/// The desktop says how many dots an inch has, 96 being ordinary: in its settings (`Xft/DPI`, in
/// 1024ths), else among the display's resources, lines of names and values.
///
///     {Xft/DPI: 196608}, ""            → 2
///     {}, "Xft.dpi:\t144\n"            → 2
///     {}, ""                           → 1
double desktopScale(const XSettings& settings, std::string_view resources);

}  // namespace launcher
