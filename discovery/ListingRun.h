#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/Sleeper.h"
#include "discovery/ListingTool.h"
#include "discovery/PropertyList.h"

namespace launcher {

/// Judges a listing: the server location that it leads to, or absent.
using ListingJudge =
    std::function<std::optional<std::string>(const PropertyList::Dictionary& listing)>;

/// Runs the listing tool and returns what `judge` makes of its output; absent where the tool cannot
/// be started or its output is no property list. A listing whose top level is anything but a
/// dictionary with text keys ends the program.
///
/// Blocks until the tool has ended and its output has been judged, a second later; no time limit.
/// `judge` is called on another thread. Any thread but the main one.
std::optional<std::string> extractSourceFromDMG(const ListingToolMaker& makeTool, Sleeper& sleeper,
                                                const ListingJudge& judge);

}  // namespace launcher
