#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "discovery/ListingTool.h"
#include "tests/doubles/EventLog.h"

namespace launcher {

/// A tool that prints what the test says, and ends at once. Its exit handler runs on a thread of
/// its own, as a real one's does.
class FakeListingTool : public ListingTool {
 public:
  bool startable = true;
  std::vector<std::string> output;
  std::shared_ptr<EventLog> log = std::make_shared<EventLog>();

  FakeListingTool() = default;
  FakeListingTool(const FakeListingTool&) = delete;
  FakeListingTool& operator=(const FakeListingTool&) = delete;
  ~FakeListingTool() override {
    if (exit_.joinable()) exit_.join();
  }

  void setOutputHandler(OutputHandler handler) override {
    log->note(handler ? "output handler set" : "output handler removed");
    outputHandler_ = std::move(handler);
  }

  void setExitHandler(ExitHandler handler) override {
    log->note("exit handler set");
    exitHandler_ = std::move(handler);
  }

  bool launch() override {
    log->note("launched");
    if (!startable) return false;
    for (const std::string& piece : output) print(piece);
    exit_ = std::thread([handler = std::move(exitHandler_)] { handler(); });
    return true;
  }

  void waitUntilExit() override { log->note("waited for"); }

  /// Prints more, which is lost if no output handler is set.
  void print(std::string_view bytes) {
    if (outputHandler_) outputHandler_(bytes);
  }

 private:
  OutputHandler outputHandler_;
  ExitHandler exitHandler_;
  std::thread exit_;
};

}  // namespace launcher
