#pragma once

#include <optional>
#include <string>

/// The desktop's clipboard. GNUstep keeps its own in a server process, which it has to start and
/// which outlives the program. Texts are UTF-8.
namespace launcher {

enum class Selection {
  clipboard,  ///< what was copied last
  primary,    ///< what was selected last; the middle button pastes it
};

/// Offers a text to all programs until one of them offers another, or until this one ends. Nothing
/// happens where there is no display. Any thread.
void offerText(Selection selection, const std::string& text);

/// The text that is on offer, or absent. Asks the program that offers it and waits for its answer,
/// for at most a second. Any thread.
std::optional<std::string> offeredText(Selection selection);

}  // namespace launcher
