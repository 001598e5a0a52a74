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

/// What the controller needs from the platform. All of it must outlive the controller and its work.
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

/// The application's services. The first use makes them. They are never destroyed, since background
/// work may still use them while the process ends. Any thread. The program that links the
/// controller defines this.
const ControllerServices& controllerServices();

/// Makes every decision of the launcher's window.
///
/// It never stores the state: each evaluation computes it from the two fields and the process
/// table, and shows it.
class LauncherController {
 public:
  /// `background` is the window's own queue; it and `window` must outlive the controller.
  LauncherController(LauncherWindow& window, WorkQueue& background,
                     const ControllerServices& services);

  /// Called when the view has loaded. Queues the search for the server, then records whether the
  /// viewer runs. Main thread.
  void viewDidLoad();

  /// The status line of a state, in the person's language. Any thread.
  std::string launchStateString(LaunchState state) const;

  /// Evaluates the launch state and shows it: the button, its title, the IP field's colour and the
  /// status line. Main thread.
  void updateState();

  /// Handles a press of the launch button. Locks the form, resolves the host and starts the viewer
  /// in the background, then evaluates the state or shows an alert. Silently ignores a location
  /// without a host. Main thread.
  void launchButtonClick();

  /// The typed address if it is valid, else the host's first address, or absent. Blocks while the
  /// resolver does; any thread but the main one.
  std::optional<std::string> getIpAddress(const std::string& domain,
                                          const std::string& manualIP) const;

  /// Queues the search for the server location on the background queue. Any thread.
  void searchDMGs();

  /// Lists the attached disk images and returns the server location that they lead to, or absent.
  /// Blocks for more than a second; any thread but the main one.
  std::optional<std::string> extractSourceFromDMG() const;

  /// The server location that a listing of attached images leads to, or absent. Any thread.
  std::optional<std::string> processDMGData(const PropertyList::Dictionary& plist) const;

  /// The server location recorded on a disk image file, or absent. Any thread.
  std::optional<std::string> extractWhereAreYouFrom(const Url& url) const;

  /// Queues an item for the main thread that writes `source` into the location field, over any text
  /// there, and evaluates the state. Any thread.
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
