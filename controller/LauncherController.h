#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/ApplicationBundle.h"
#include "base/Sleeper.h"
#include "base/Url.h"
#include "controller/LaunchState.h"
#include "controller/LauncherWindow.h"
#include "controller/Translations.h"
#include "controller/WorkQueue.h"
#include "discovery/ListingTool.h"
#include "discovery/OriginAttribute.h"
#include "discovery/PropertyList.h"
#include "net/HostResolver.h"
#include "net/LinkDetector.h"
#include "process/LaunchControl.h"
#include "process/ProcessTable.h"

namespace launcher {

/// What the controller asks of the world. All of it must outlive the controller and its work.
struct ControllerServices {
  const ApplicationBundle& bundle;
  const HostResolver& resolver;
  const LinkDetector& links;
  const OriginAttribute& origin;
  const ProcessTable& processes;
  const Translations& translations;
  const ListingToolMaker& listingTool;
  Sleeper& sleeper;
  LaunchControl& launchControl;
  WorkQueue& mainQueue;
};

/// What the application's window is given. Defined by whoever assembles the program.
const ControllerServices& controllerServices();

/// Everything that the launcher's window decides.
///
/// The state is never stored: each evaluation computes it from the two fields and the process
/// table, shows it and forgets it.
class LauncherController {
 public:
  /// `background` is a queue of the window's own; it and `window` must outlive the controller.
  LauncherController(LauncherWindow& window, WorkQueue& background,
                     const ControllerServices& services);

  /// The view has loaded: queues the search for the server, then records whether the viewer runs.
  /// Main thread.
  void viewDidLoad();

  /// The status line of a state, in the person's language. Any thread.
  std::string launchStateString(LaunchState state) const;

  /// Evaluates the launch state and shows it: the button, its title, the IP field's colour and the
  /// status line. Main thread.
  void updateState();

  /// A press of the launch button: locks the form, resolves the host and starts the viewer in the
  /// background, then evaluates the state or shows an alert. A location that has no host is ignored
  /// silently. Main thread.
  void launchButtonClick();

  /// The typed address if it is valid, else the host's first address, or absent. Blocks while the
  /// resolver does; any thread but the main one.
  std::optional<std::string> getIpAddress(const std::string& domain,
                                          const std::string& manualIP) const;

  /// Queues the search for the server location on the background queue. Any thread.
  void searchDMGs();

  /// Lists the attached disk images and returns the server location found, or absent. Blocks for
  /// more than a second; any thread but the main one.
  std::optional<std::string> extractSourceFromDMG() const;

  /// The server location that a listing of attached images leads to, or absent. Any thread.
  std::optional<std::string> processDMGData(const PropertyList::Dictionary& plist) const;

  /// The server location recorded on a disk image file, or absent. Any thread.
  std::optional<std::string> extractWhereAreYouFrom(const Url& url) const;

  /// Queues, for the main thread, writing `source` into the location field, whatever it holds by
  /// then, and an evaluation of the state. Any thread.
  void updateSourceLocation(const std::string& source);

 private:
  void lookUpAndLaunch(const std::string& host, const std::string& manualIP);
  void launched();
  void lookupFailed(const std::string& host);

  void markIpAddress(const std::string& ip, bool acceptable);
  LaunchState offerLaunch();
  LaunchState refuseLaunch();
  ProcessId runningViewer() const;

  LauncherWindow& window_;
  WorkQueue& background_;
  ControllerServices services_;
};

}  // namespace launcher
