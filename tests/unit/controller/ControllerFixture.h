#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "base/Unicode.h"
#include "controller/LauncherController.h"
#include "tests/doubles/FakeBundle.h"
#include "tests/doubles/FakeHostResolver.h"
#include "tests/doubles/FakeProcessTable.h"
#include "tests/doubles/FakeProgramStarter.h"
#include "tests/doubles/FakeSleeper.h"
#include "tests/doubles/FakeTranslations.h"
#include "tests/doubles/FakeWindow.h"
#include "tests/doubles/ManualQueue.h"
#include "tests/doubles/WordLinkDetector.h"

namespace launcher {

/// Notes the texts that are searched for a link.
class NotingLinkDetector : public WordLinkDetector {
 public:
  std::optional<LinkMatch> firstMatch(std::u16string_view text, std::size_t length) const override {
    ++searches;
    lastText = utf8(text);
    return WordLinkDetector::firstMatch(text, length);
  }

  mutable int searches = 0;
  mutable std::string lastText;
};

/// Gives every file the same address, or none at all.
class OneOrigin : public OriginAttribute {
 public:
  std::string list;

  std::ptrdiff_t read(const std::string&, std::byte* buffer, std::size_t size) const override {
    if (list.empty()) return -1;
    if (buffer != nullptr) std::memcpy(buffer, list.data(), size);
    return static_cast<std::ptrdiff_t>(list.size());
  }
};

/// A run of the listing tool that is over as soon as it is started.
class PromptListingTool : public ListingTool {
 public:
  explicit PromptListingTool(std::string output) : output_(std::move(output)) {}

  void setOutputHandler(OutputHandler handler) override { onOutput_ = std::move(handler); }
  void setExitHandler(ExitHandler handler) override { onExit_ = std::move(handler); }
  bool launch() override {
    onOutput_(output_);
    onExit_();
    return true;
  }
  void waitUntilExit() override {}

 private:
  std::string output_;
  OutputHandler onOutput_;
  ExitHandler onExit_;
};

/// The controller in a world of doubles, where no viewer runs and no host resolves.
class ControllerFixture : public testing::Test {
 protected:
  static constexpr ProcessId viewerPid = 42;

  /// All doubles share one log.
  ControllerFixture() {
    processes.log = sleeper.log = starter.log = mainQueue.log = background.log = window.log = log;
  }

  void fill(const std::string& location, const std::string& ip) {
    window.location = location;
    window.ip = ip;
  }

  void letViewerRun(bool runs) {
    processes.processes.clear();
    if (runs) processes.processes = {processRecord(viewerPid, "vexlink")};
  }

  void letHostsResolve() { resolver.answer = {ipv4("192.0.2.7")}; }

  /// Mounts the application's folder from an image that was downloaded from `address`.
  void attachImageFrom(const std::string& address) {
    bundle.folder = "/Volumes/Vorx/VorxLauncher.app";
    listing =
        "<plist><dict><key>images</key><array><dict>"
        "<key>image-path</key><string>/downloads/a.dmg</string>"
        "<key>system-entities</key><array><dict>"
        "<key>mount-point</key><string>/Volumes/Vorx</string>"
        "</dict></array></dict></array></dict></plist>";
    origin.list = "<plist><array><string>" + address + "</string></array></plist>";
  }

  void runAllWork() {
    background.runAll();
    mainQueue.runAll();
  }

  std::shared_ptr<EventLog> log = std::make_shared<EventLog>();
  FakeBundle bundle;
  FakeHostResolver resolver;
  NotingLinkDetector links;
  OneOrigin origin;
  FakeProcessTable processes;
  FakeTranslations translations;
  std::string listing;
  ListingToolMaker listingTool = [this] { return std::make_shared<PromptListingTool>(listing); };
  FakeSleeper sleeper;
  FakeProgramStarter starter;
  LaunchControl launchControl{{bundle, processes, starter, sleeper}};
  ManualQueue mainQueue{"on main thread"};
  ManualQueue background{"in background"};
  FakeWindow window;
  LauncherController controller{window,
                                background,
                                {.bundle = bundle,
                                 .resolver = resolver,
                                 .links = links,
                                 .origin = origin,
                                 .processes = processes,
                                 .translations = translations,
                                 .listingTool = listingTool,
                                 .sleeper = sleeper,
                                 .launchControl = launchControl,
                                 .mainQueue = mainQueue}};
};

}  // namespace launcher
