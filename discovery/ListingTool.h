#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "base/ApplicationBundle.h"

namespace launcher {

/// One run of the platform's tool that lists the attached disk images as a property list, its
/// output and error streams joined in one pipe.
class ListingTool {
 public:
  using OutputHandler = std::function<void(std::string_view bytes)>;
  using ExitHandler = std::function<void()>;

  virtual ~ListingTool() = default;

  /// Before the launch: has `handler` called on another thread with each piece of output as it
  /// comes. The empty handler removes it, at any time but from within it: once this returns no call
  /// is under way and none follows, even if a child of the tool still holds the output open.
  virtual void setOutputHandler(OutputHandler handler) = 0;

  /// Before the launch: has `handler` called once on another thread after the tool has ended.
  virtual void setExitHandler(ExitHandler handler) = 0;

  /// Starts the tool. False where that is impossible; then no handler is ever called.
  virtual bool launch() = 0;

  /// After the launch: blocks until the tool has ended; the exit handler may still be running.
  virtual void waitUntilExit() = 0;
};

/// Makes one run of the tool, not yet started.
using ListingToolMaker = std::function<std::shared_ptr<ListingTool>()>;

/// One run of the program at `path`, which is asked for the attached disk images, not yet started.
///
///     makeListingToolAt("/usr/bin/hdiutil")->launch()
std::shared_ptr<ListingTool> makeListingToolAt(const std::string& path);

/// The platform's own tool; `bundle` must outlive the maker.
ListingToolMaker makeListingToolMaker(const ApplicationBundle& bundle);

}  // namespace launcher
