#include "process/LaunchControl.h"

#include <utility>
#include <vector>

#include "process/ProcessHelpers.h"

namespace launcher {
namespace {

constexpr int kMostWaits = 5;
constexpr double kSecondsPerWait = 1.0;

}  // namespace

LaunchControl::LaunchControl(Services services) : services_(services) {}

void LaunchControl::launchProc(const std::string& location, const std::string& ip) {
  const std::optional<std::string> resources = services_.bundle.resourcePath();
  if (!resources) return;

  if (viewerRuns()) {
    // Stop only a viewer that this instance started.
    if (const auto viewer = runningProcess()) viewer->terminate();
    waitForOldViewer();
  }

  const std::string path = *resources + "/bin/" + std::string(targetProc);
  auto viewer = services_.starter.start(path, {"-l", location, "-i", ip, "-r", *resources});
  if (viewer != nullptr) replaceRunningProcess(std::move(viewer));
}

void LaunchControl::terminateProc() {
  if (const auto viewer = runningProcess()) viewer->terminate();
  replaceRunningProcess(nullptr);
}

std::shared_ptr<RunningProcess> LaunchControl::runningProcess() const {
  const std::lock_guard lock(mutex_);
  return runningProcess_;
}

void LaunchControl::replaceRunningProcess(std::shared_ptr<RunningProcess> process) {
  const std::lock_guard lock(mutex_);
  runningProcess_.swap(process);
}

void LaunchControl::waitForOldViewer() {
  for (int waits = 0; waits < kMostWaits; ++waits) {
    services_.sleeper.sleep(kSecondsPerWait);
    if (!viewerRuns()) return;
  }
}

bool LaunchControl::viewerRuns() const {
  return ProcessHelpers::getRunningProcess(targetProc, services_.processes) != noProcess;
}

}  // namespace launcher
