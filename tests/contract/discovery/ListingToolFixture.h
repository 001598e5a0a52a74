#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <atomic>
#include <fstream>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "discovery/ListingTool.h"
#include "tests/contract/Eventually.h"
#include "tests/contract/ScratchFolder.h"

namespace launcher {

/// What the handlers were called with. A tool's exit may be reported after the test has ended.
struct Seen {
  std::mutex mutex;
  std::string output;
  std::thread::id outputThread;
  std::atomic<std::thread::id> exitThread;
  std::atomic<int> exits = 0;
};

/// Runs a shell script in the tool's place. Each run has handlers of its own.
class ListingToolTest : public testing::Test {
 protected:
  /// Puts a script into the tool's place.
  void script(const std::string& commands, mode_t mode = 0700) const {
    std::ofstream(program()) << "#!/bin/sh\ncd '" << folder_.path() << "'\n" << commands;
    chmod(program().c_str(), mode);
  }

  std::string program() const { return folder_.file("tool"); }

  /// A new run, watched but not started.
  std::shared_ptr<ListingTool> makeTool() {
    auto tool = makeListingToolAt(program());
    tool->setOutputHandler([seen = seen_](std::string_view bytes) {
      const std::lock_guard lock(seen->mutex);
      seen->output += bytes;
      seen->outputThread = std::this_thread::get_id();
    });
    tool->setExitHandler([seen = seen_] {
      seen->exitThread = std::this_thread::get_id();
      ++seen->exits;
    });
    return tool;
  }

  std::string output() {
    const std::lock_guard lock(seen_->mutex);
    return seen_->output;
  }

  bool eventuallyPrinted(const std::string& text) {
    return eventually([&] { return output() == text; });
  }

  bool eventuallyExited(int times = 1) {
    return eventually([&] { return seen_->exits == times; });
  }

  const ScratchFolder folder_;
  const std::shared_ptr<Seen> seen_ = std::make_shared<Seen>();
};

}  // namespace launcher
