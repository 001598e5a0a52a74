#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "base/ApplicationBundle.h"

namespace launcher {

/// One run of the platform's tool that lists the attached disk images as a property list. One pipe
/// takes both its output and error streams.
class ListingTool {
 public:
  using OutputHandler = std::function<void(std::string_view bytes)>;
  using ExitHandler = std::function<void()>;

  virtual ~ListingTool() = default;

  /// Before the launch: sets the handler that is called on another thread with each piece of output
  /// as it comes. An empty handler removes it, at any time, but not from within the handler. Once
  /// this returns, no call is under way and none follows, even if a child of the tool still holds
  /// the output open.
  virtual void setOutputHandler(OutputHandler handler) = 0;

  /// Before the launch: sets the handler that is called once, on another thread, after the tool has
  /// ended.
  virtual void setExitHandler(ExitHandler handler) = 0;

  /// Starts the tool. False if that fails; then no handler is ever called.
  virtual bool launch() = 0;

  /// After the launch: blocks until the tool has ended; the exit handler may still be running.
  virtual void waitUntilExit() = 0;
};

/// Makes one run of the tool and does not start it.
using ListingToolMaker = std::function<std::shared_ptr<ListingTool>()>;

/// Makes one run of the listing tool at `path` and does not start it.
///
///     makeListingToolAt("/usr/bin/hdiutil")->launch()
std::shared_ptr<ListingTool> makeListingToolAt(const std::string& path);

/// The platform's own tool; `bundle` must outlive the maker.
ListingToolMaker makeListingToolMaker(const ApplicationBundle& bundle);

}  // namespace launcher
