#pragma once

#include <optional>
#include <string>

/// The desktop's clipboard. GNUstep keeps its own in a server process of its own, which it has to
/// start and which outlives the program. Texts are UTF-8.
namespace launcher {

/// Offers a text to other programs, and to this one, until another program offers something or this
/// one ends. Nothing happens where there is no display. Any thread.
void offerToClipboard(const std::string& text);

/// The text that the clipboard holds, or absent; asks the program that offers it and waits for its
/// answer for at most a second. Not on a thread that is to offer something meanwhile.
std::optional<std::string> textOnClipboard();

}  // namespace launcher
