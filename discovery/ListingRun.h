#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/Sleeper.h"
#include "discovery/ListingTool.h"
#include "discovery/PropertyList.h"

namespace launcher {

/// Returns the server location that a listing leads to, or absent.
using ListingJudge =
    std::function<std::optional<std::string>(const PropertyList::Dictionary& listing)>;

/// Runs the listing tool and returns what `judge` finds in its output. Absent if the tool cannot be
/// started or its output is no property list. Ends the program if the listing's top level is not a
/// dictionary with text keys.
///
/// Blocks without a time limit: until the tool has ended, then another second, then `judge`, which
/// runs on another thread. Any thread but the main one.
std::optional<std::string> extractSourceFromDMG(const ListingToolMaker& makeTool, Sleeper& sleeper,
                                                const ListingJudge& judge);

}  // namespace launcher
