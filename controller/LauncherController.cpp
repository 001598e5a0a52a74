#include "controller/LauncherController.h"

#include "base/SDLog.h"
#include "discovery/DownloadOrigin.h"
#include "discovery/ImageRecords.h"
#include "discovery/ListingRun.h"
#include "net/AddressChecks.h"
#include "net/IPUtils.h"
#include "process/ProcessHelpers.h"

namespace launcher {
namespace {

/// A location without a scheme means "https".
std::string withScheme(const std::string& location) {
  return location.find("://") == std::string::npos ? "https://" + location : location;
}

std::optional<std::string> hostOf(const std::string& location, const LinkDetector& links) {
  const auto url = validURLAddress(withScheme(location), InsecureScheme::allowed, links);
  return url ? url->host() : std::nullopt;
}

}  // namespace

LauncherController::LauncherController(LauncherWindow& window, WorkQueue& background,
                                       const ControllerServices& services)
    : window_(window), background_(background), services_(services) {}

void LauncherController::viewDidLoad() {
  searchDMGs();
  services_.launchControl.setRunningAppPID(runningViewer());
}

std::string LauncherController::launchStateString(LaunchState state) const {
  return services_.translations(statusText(state));
}

void LauncherController::updateState() {
  const std::string ip = window_.ipAddress();
  const bool ipAcceptable = ip.empty() || validIPAddress(ip);
  markIpAddress(ip, ipAcceptable);

  const bool locationAcceptable = isValidURLAddress(window_.vorxLocation(), services_.links);

  const bool ready = ipAcceptable && locationAcceptable;
  const LaunchState state = ready ? offerLaunch() : refuseLaunch();
  window_.setInfoLabel(launchStateString(state));
}

void LauncherController::markIpAddress(const std::string& ip, bool acceptable) {
  const AddressMark judged = acceptable ? AddressMark::valid : AddressMark::invalid;
  window_.setIpAddressMark(ip.empty() ? AddressMark::empty : judged);
}

LaunchState LauncherController::offerLaunch() {
  window_.setLaunchButton(Availability::enabled);
  const bool running = runningViewer() != noProcess;
  window_.setLaunchButtonTitle(services_.translations(running ? texts::reLaunch : texts::launch));
  return running ? LaunchState::runningReadyToRun : LaunchState::readyToRun;
}

LaunchState LauncherController::refuseLaunch() {
  window_.setLaunchButton(Availability::disabled);
  return LaunchState::noURL;
}

void LauncherController::launchButtonClick() {
  SDLog("launch button pressed", "ViewController", "launchButtonClick(_:)");
  const auto host = hostOf(window_.vorxLocation(), services_.links);
  if (!host) return;

  window_.setLaunchButton(Availability::disabled);
  window_.setVorxLocation(Availability::disabled);
  window_.setInfoLabel(launchStateString(LaunchState::gettingIPAddress));

  background_.add([this, alive = window_.keepAlive(), host = *host,
                   manualIP = window_.ipAddress()] { lookUpAndLaunch(host, manualIP); });
}

void LauncherController::lookUpAndLaunch(const std::string& host, const std::string& manualIP) {
  const auto ip = getIpAddress(host, manualIP);
  if (!ip) {
    services_.mainQueue.add([this, alive = window_.keepAlive(), host] { lookupFailed(host); });
    return;
  }
  services_.launchControl.launchProc(host, *ip);
  services_.mainQueue.add([this, alive = window_.keepAlive()] { launched(); });
}

void LauncherController::launched() {
  window_.setVorxLocation(Availability::enabled);
  updateState();
}

void LauncherController::lookupFailed(const std::string& host) {
  const Translations& translated = services_.translations;
  window_.setInfoLabel(launchStateString(LaunchState::noURL));
  window_.showAlert({.message = filledIn(translated(texts::lookupFailed), host),
                     .informative = translated(texts::checkAddress),
                     .button = translated(texts::ok)});
  // Keep the button disabled: an edit of the location evaluates the state again.
  window_.setVorxLocation(Availability::enabled);
}

std::optional<std::string> LauncherController::getIpAddress(const std::string& domain,
                                                            const std::string& manualIP) const {
  if (validIPAddress(manualIP)) return manualIP;
  return IPUtils::getIP(domain, services_.resolver);
}

void LauncherController::searchDMGs() {
  background_.add([this, alive = window_.keepAlive()] {
    if (const auto source = extractSourceFromDMG()) updateSourceLocation(*source);
  });
}

std::optional<std::string> LauncherController::extractSourceFromDMG() const {
  const auto judge = [this](const PropertyList::Dictionary& listing) {
    return processDMGData(listing);
  };
  return launcher::extractSourceFromDMG(services_.listingTool, services_.sleeper, judge);
}

std::optional<std::string> LauncherController::processDMGData(
    const PropertyList::Dictionary& plist) const {
  const auto origin = [this](const Url& imageFile) { return extractWhereAreYouFrom(imageFile); };
  return launcher::processDMGData(plist, services_.bundle, origin);
}

std::optional<std::string> LauncherController::extractWhereAreYouFrom(const Url& url) const {
  return launcher::extractWhereAreYouFrom(url, services_.origin);
}

void LauncherController::updateSourceLocation(const std::string& source) {
  services_.mainQueue.add([this, alive = window_.keepAlive(), source] {
    window_.setVorxLocation(source);
    updateState();
  });
}

ProcessId LauncherController::runningViewer() const {
  return ProcessHelpers::getRunningProcess(LaunchControl::targetProc, services_.processes);
}

}  // namespace launcher
